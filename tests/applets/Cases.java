import java.awt.*;
import java.awt.image.BufferedImage;
import java.io.IOException;
import java.net.URL;
import java.nio.charset.StandardCharsets;
import java.nio.file.*;
import java.util.Arrays;
import java.util.function.IntBinaryOperator;
import javax.imageio.ImageIO;

/** What the cases are written with: pages, images, comparisons. */
abstract class Cases {
    /** Where the pages lie that the generators are held to, and where images are written. */
    static Path expected;
    static Path folder;
    static final IntBinaryOperator PAPER = (x, y) -> 0xffeeeeee - x % 7 * 0x101 - y % 5 * 0x100000;
    private static Host shown;

    /** Draws pages of a folder: each argument is a page's name and times, such as "cube 0 300". */
    public static void main(String[] arguments) throws Exception {
        expected = folder = Paths.get(arguments[0]);
        writeImages();
        for (int i = 1; i < arguments.length; i++) {
            String[] part = arguments[i].split(" ");
            Host host = host(page(part[0] + ".html"));
            for (int j = 1; j < part.length; j++)
                ImageIO.write(host.at(Long.parseLong(part[j])), "png",
                              folder.resolve(part[0] + "-" + part[j] + ".png").toFile());
        }
        System.exit(0);
    }

    static void same(String what, Object wanted, Object found) {
        if (!wanted.equals(found))
            throw new AssertionError(what + ": wanted " + wanted + ", found " + found);
    }

    static void samePicture(String what, BufferedImage wanted, BufferedImage found) {
        int width = wanted.getWidth();
        int height = wanted.getHeight();
        if (!Arrays.equals(wanted.getRGB(0, 0, width, height, null, 0, width),
                           found.getRGB(0, 0, width, height, null, 0, width)))
            throw new AssertionError(what + ": the picture is another");
    }

    /** A page that the wizards' generators are held to. */
    static String page(String name) throws IOException {
        return new String(Files.readAllBytes(expected.resolve(name)), StandardCharsets.UTF_8);
    }

    /** The page with one more parameter, which replaces what it said before. */
    static String with(String page, String name, String value) {
        String line = "<PARAM NAME=" + name + " VALUE=\"" + value + "\">\r\n";
        return without(page, name).replace("</APPLET>", line + "</APPLET>");
    }

    static String without(String page, String name) {
        return page.replaceAll("<PARAM NAME=\"?" + name.replace(".", "\\.") + "\"? [^\n]*\n", "");
    }

    /** Shows a page in place of the one before. */
    static Host host(String page) throws Exception {
        if (shown != null)
            shown.applet.stop();
        shown = new Host(page, new URL(folder.toUri() + "page.html"));
        return shown;
    }

    private static final int[] INKS = {0xff0000, 0x00ff00, 0x0000ff, 0xffff00,
                                       0x800000, 0x008000, 0x000080, 0x808000};

    static void writeImages() throws IOException {
        image("a.gif", 200, 100, (x, y) -> quarter(x / 100, y / 50, 0));
        image("b.gif", 200, 100, (x, y) -> quarter(x / 100, y / 50, 4));
        image("c.gif", 100, 60, (x, y) -> 0xff123456);
        image("photo.gif", 200, 150, (x, y) -> quarter(x / 100, y / 75, 0));
        image("invisi.gif", 1, 1, (x, y) -> 0);
        image("face.gif", 256, 256, (x, y) -> quarter(x / 128, y / 128, 0));
        image("lake.jpg", 320, 100, (x, y) -> 0xff000000 | y);
        image("pond.jpg", 320, 100, (x, y) -> 0xff000000 | x << 8 | y);
        image("red.gif", 100, 80, (x, y) -> 0xffc86400);
        image("sky.gif", 100, 80, (x, y) -> 0xff32faff);
        image("paper.gif", 7, 5, PAPER);
    }

    /** The pixel of a quarter, which grid() shows as one of ABCD or, with `first` 4, of abcd. */
    private static int quarter(int column, int row, int first) {
        return 0xff000000 | INKS[first + column + 2 * row];
    }

    private static void image(String name, int width, int height, IntBinaryOperator color)
        throws IOException {
        ImageIO.write(filled(width, height, color), "png", folder.resolve(name).toFile());
    }

    static BufferedImage filled(int width, int height, IntBinaryOperator color) {
        BufferedImage image = new BufferedImage(width, height, BufferedImage.TYPE_INT_ARGB);
        for (int i = 0; i < width * height; i++)
            image.setRGB(i % width, i / width, color.applyAsInt(i % width, i / width));
        return image;
    }

    /** Sixteen points of a picture, row by row, as letters; a point is what is no quarter. */
    static String grid(BufferedImage picture) {
        String seen = "";
        for (int i = 0; i < 16; i++) {
            int rgb = picture.getRGB((i % 4 * 2 + 1) * picture.getWidth() / 8,
                                     (i / 4 * 2 + 1) * picture.getHeight() / 8);
            int ink = 0;
            while (ink < 8 && INKS[ink] != (rgb & 0xffffff))
                ink++;
            seen += (i > 0 && i % 4 == 0 ? " " : "") + "ABCDabcd.".charAt(ink);
        }
        return seen;
    }

    /** Compares points of a picture, each "time x,y colour". */
    static void colors(Host host, String... points) {
        for (String point : points) {
            String[] part = point.split("[ ,]");
            BufferedImage seen = host.at(Long.parseLong(part[0]));
            int rgb = seen.getRGB(Integer.parseInt(part[1]), Integer.parseInt(part[2]));
            same(point, part[3], String.format("%06x", rgb & 0xffffff));
        }
    }

    /** Expects that the page, made wide enough for one line, shows these words at first. */
    static void says(String page, String words) throws Exception {
        Host host = host(page.replaceFirst("WIDTH=\"\\d+\"", "WIDTH=\"400\""));
        BufferedImage wanted = filled(400, host.applet.getHeight(), (x, y) -> 0xffffffff);
        Graphics2D g = wanted.createGraphics();
        g.setColor(Color.black);
        g.setFont(new Font("SansSerif", Font.PLAIN, 12));
        g.drawString(words, 4, 16);
        samePicture(words, wanted, host.at(0));
    }
}
