import java.awt.*;
import java.awt.event.MouseEvent;
import java.util.*;
import java.util.function.LongSupplier;

/** The animation: frames, pauses, cycles, links, sounds and every transition. */
final class AnimationCases extends Cases {
    private static final String FIRST = "AABB AABB CCDD CCDD";
    private static final String SECOND = "aabb aabb ccdd ccdd";
    private static final String EMPTY = ".... .... .... ....";

    private static String twoImages() throws Exception {
        return page("advanced_animator_two_images.html");
    }

    static void goesThroughItsFrames() throws Exception {
        // The area is 320 by 200: images a and b stand at 60,50, image c at 110,70.
        Host host = host(page("advanced_animator_full.html"));
        colors(host, "0 59,50 ff8000", "0 60,50 ff0000", "99999 60,50 ff0000");
        same("hand", Cursor.HAND_CURSOR, host.applet.getCursor().getType());
        host.click(100000);
        // Half of the 30 steps of 30 ms: b has come from the upper right corner to 220,-50.
        colors(host, "100450 259,149 ffff00", "100450 220,49 000080", "100450 159,99 ff0000",
               "100450 160,99 ff8000", "100900 259,149 808000");
        host.click(100950);
        same("opened once", "[_self http://www.example.com/x.html]", host.opened.toString());
        colors(host, "100999 259,149 808000", "101000 110,70 123456", "101249 109,70 ff8000");
        same("sound", "[ding.au]", host.played.toString());
        colors(host, "101250 60,50 ff0000");
        same("sound of the second cycle", 2, host.played.size());
        for (int cycle = 2; cycle <= 10; cycle++)
            host.click(100000L * cycle);
        colors(host, "9999999 110,70 123456");
    }

    static void repeatsUntilTheVisitorIsAwaited() throws Exception {
        Host host = host(twoImages());
        same("b", SECOND, grid(host.at(10000100)));
        same("a", FIRST, grid(host.at(10000200)));
        host = host(with(twoImages(), "PAUSE.1", "-2"));
        host.mouse(50, MouseEvent.MOUSE_MOVED, 0);
        same("an early move", SECOND, grid(host.at(5000)));
        host.click(5001);
        same("a click", SECOND, grid(host.at(5002)));
        host.mouse(5003, MouseEvent.MOUSE_MOVED, 0);
        same("a move", FIRST, grid(host.at(5004)));
    }

    /** The picture when a transition from a to b has run for some of its 30 steps. */
    private static String during(String type, int steps) throws Exception {
        Host host = host(with(twoImages(), "TRANSITION.TYPE.0", type));
        same(type + " before", FIRST, grid(host.at(99)));
        String seen = grid(host.at(100 + 30 * steps));
        same(type + " after", SECOND, grid(host.at(1000)));
        return seen;
    }

    static void drawsEveryTransitionHalfWay() throws Exception {
        String[][] rows = {
            {"slidein(1)", "ddBB ddBB CCDD CCDD"},  {"slidein(2)", "ccdd ccdd CCDD CCDD"},
            {"slidein(3)", "AAcc AAcc CCDD CCDD"},  {"slidein(4)", "AAaa AAaa CCcc CCcc"},
            {"slidein(5)", "AABB AABB CCaa CCaa"},  {"slidein(6)", "AABB AABB aabb aabb"},
            {"slidein(7)", "AABB AABB bbDD bbDD"},  {"slidein(8)", "bbBB bbBB ddDD ddDD"},
            {"slideout(1)", "DDbb DDbb ccdd ccdd"}, {"scroll(2)", "ccdd ccdd AABB AABB"},
            {"scroll(8)", "bbAA bbAA ddCC ddCC"},   {"expand(1)", "abBB cdBB CCDD CCDD"},
            {"expand(5)", "AABB AABB CCab CCcd"},   {"expand(9)", "AABB AabB CcdD CCDD"},
            {"shrink(3)", "aaAB aaCD ccdd ccdd"},   {"squish(2)", "AABB CCDD aabb ccdd"},
            {"SQUISH(6)", "aabb ccdd AABB CCDD"},
        };
        for (String[] row : rows)
            same(row[0], row[1], during(row[0], 15));
        for (String type : new String[] {"overwrite()", "overwrit(r)", "rando(r)"}) {
            Host host = host(with(twoImages(), "TRANSITION.TYPE.0", type));
            same(type, SECOND, grid(host.at(100)));
            same(type + " over", FIRST, grid(host.at(200)));
        }
    }

    static void drawsTheShutter() throws Exception {
        same("1 closes", ".... .AB. .CD. ....", during("shutter(1)", 7));
        same("1 opens", ".... .ab. .cd. ....", during("shutter(1)", 22));
        same("0 closes", "AABB A..B C..D CCDD", during("shutter(0)", 7));
        same("0 opens", "aabb a..b c..d ccdd", during("shutter(0)", 22));
        same("bare", ".... .AB. .CD. ....", during("shutter", 7));
        String page = with(twoImages(), "TRANSITION.TYPE.0", "shutter(1)");
        colors(host(with(page, "FGCOLOR.0", "1,2,3")), "550 0,0 010203");
        colors(host(with(page, "BGCOLOR.0", "4,5,300")), "550 0,0 0405ff");
    }

    static void leavesOpenToChance() throws Exception {
        Set<String> seen = new TreeSet<>();
        String page = with(twoImages(), "TRANSITION.TYPE.0", "random()");
        page = with(page, "TRANSITION.LIST", "scroll(2:4)|expand(8-9)");
        for (int i = 0; i < 80; i++)
            seen.add(grid(host(page).at(100 + 15 * 30)));
        same("random",
             "[AABB AabB CcdD CCDD, AABB abBB cdDD CCDD, BBaa BBaa DDcc DDcc, ccdd ccdd AABB AABB]",
             seen.toString());
    }

    static void bringsAndTakesOneImage() throws Exception {
        // Which effect, a time on the way and what is seen then, a time behind it, and then.
        String[][] middles = {
            {"0", "1210", "AABB A..B C..D CCDD", "1600", FIRST},
            {"5", "850", ".... .... AABB AABB", "1600", EMPTY},
            {"7", "850", "BB.. BB.. DD.. DD..", "1600", FIRST},
            {"7", "2850", "BB.. BB.. DD.. DD..", "3600", EMPTY},
            {"9", "1350", "..AB ..CD .... ....", "2100", EMPTY},
            {"10", "760", ".... .... ..AB ..CD", "1510", FIRST},
            {"10", "2760", ".... .... ..AB ..CD", "3510", EMPTY},
        };
        String rest = page("more_image_effects_expand_shrink_full.html")
                          .replaceAll("<PARAM NAME=(IMAGE|TRANSITION.TYPE|PAUSE.0)[^\n]*\n", "");
        String[] rows = page("more_image_effects_lines.tsv").split("\n");
        for (String[] middle : middles) {
            String lines =
                rows[Integer.parseInt(middle[0])].split("\t", 3)[2].replace("\t", "\r\n");
            Host host = host(rest.replace("</APPLET>", lines + "\r\n</APPLET>"));
            same(lines, middle[2], grid(host.at(Long.parseLong(middle[1]))));
            same(lines + " at the end", middle[4], grid(host.at(Long.parseLong(middle[3]))));
        }
    }

    static void movesAndEndsByItself() throws Exception {
        Host host = host(twoImages());
        host.applet.stop();
        host.clock.set(null, (LongSupplier) System::currentTimeMillis);
        Window window = new Window((Frame) null);
        window.add(host.applet);
        window.setSize(200, 100);
        window.setVisible(true);
        host.applet.start();
        Rectangle place = new Rectangle(host.applet.getLocationOnScreen(), window.getSize());
        Set<String> seen = new HashSet<>();
        for (int i = 0; i < 400 && !(seen.contains(FIRST) && seen.contains(SECOND)); i++) {
            seen.add(grid(new Robot().createScreenCapture(place)));
            Thread.sleep(10);
        }
        same("both frames seen", true, seen.contains(FIRST) && seen.contains(SECOND));
        host.applet.stop();
        Thread.sleep(300);
        for (Thread thread : Thread.getAllStackTraces().keySet())
            same("the thread has ended", false, thread.getName().equals("Animate1"));
        window.dispose();
    }
}
