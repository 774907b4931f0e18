import java.applet.AudioClip;
import java.awt.Color;
import java.awt.Graphics2D;
import java.awt.image.BufferedImage;
import java.util.List;
import java.util.Locale;

/** Images one after the other, each with its pause, transition, link and sound. */
public class Animate1 extends CoolTool3 {
    private static final String EVERY_TRANSITION =
        "shutter|slidein(1-8)|slideout(1-8)"
        + "|scroll(2:4:6:8)|expand(1-9)|overwrite|shrink(1-9)";
    private static final String OVERWRITE = "overwrite";
    /** x and y of the directions 1 to 9: from the upper left corner clockwise, then the middle. */
    private static final int[] ACROSS = {0, -1, 0, 1, 1, 1, 0, -1, -1, 0};
    private static final int[] DOWN = {0, -1, -1, -1, 0, 1, 1, 1, 0, 0};

    private BufferedImage[] frames;
    private int[] pauses;
    private String[] links;
    private AudioClip[] sounds;
    /** The transition from each frame to the next one as its parameter writes it, or null. */
    private String[] types;
    private String[] list;
    private int steps;
    private int stepMs;
    private int cycles;
    private Color curtain;

    // The state of the animation: a frame stands, or a transition leads away from it.
    private int shown;
    private boolean moving;
    private long since;
    private int cycle;
    private String transition;
    private int direction;

    @Override
    void prepare() throws InterruptedException {
        background = color("BGCOLOR.0", Color.white);
        curtain = color("FGCOLOR.0", background);
        target = value("TARGET.0");
        cycles = number("CYCLES", 0);
        steps = number("TRANSITION.STEP.0", 20);
        steps = steps < 1 ? 20 : steps;
        stepMs = Math.max(0, number("TRANSITION.RATE.0", 20)) + 10;
        List<String> names = values("IMAGE");
        if (names.isEmpty())
            problem = missing("IMAGE.0");
        int count = names.size();
        frames = new BufferedImage[count];
        for (int i = 0; i < count; i++)
            frames[i] = frame(imageOrWords(names.get(i)));
        readFrames(count);
        readTransitions(count);
        // Frame 0 begins to stand as every other does: at the end of a transition that leads to it.
        shown = cycle = -1;
        moving = true;
        since = 0;
        transition = OVERWRITE;
    }

    private BufferedImage frame(BufferedImage image) {
        BufferedImage frame = blank(areaWidth, areaHeight);
        int x = Math.floorDiv(areaWidth - image.getWidth(), 2);
        int y = Math.floorDiv(areaHeight - image.getHeight(), 2);
        frame.getGraphics().drawImage(image, x, y, null);
        return frame;
    }

    private void readFrames(int count) {
        pauses = new int[count];
        links = new String[count];
        sounds = new AudioClip[count];
        boolean sounding = "auto".equalsIgnoreCase(value("SOUND.ACTIVATION.0"));
        for (int i = 0; i < count; i++) {
            int pause = number("PAUSE." + i, 100);
            pauses[i] = pause < -2 ? 100 : pause < 0 ? pause : Math.max(10, pause);
            boolean own = value("URL." + i) != null || i == 0;
            links[i] = own ? linkIn("URL." + i) : links[i - 1];
            String sound = value("SOUND." + i);
            if (sounding && sound != null && address(sound) != null)
                sounds[i] = getAudioClip(address(sound));
        }
    }

    /**
     * An animation's window gives each image the transition to the next one. The effects of one
     * image, which name no list, give what brings an image to that image, and what takes it away
     * to the image that goes or, after the last, to the empty frame that comes.
     */
    private void readTransitions(int count) {
        String names = value("TRANSITION.LIST");
        list = (names == null ? EVERY_TRANSITION : names).split("\\|");
        types = new String[count];
        for (int i = 0; i < count; i++) {
            String type = value("TRANSITION.TYPE." + i);
            boolean goes = type != null && nameOf(type).matches("slideout|shrink") && i < count - 1;
            int step = names != null || goes ? i : i - 1;
            if (type != null && step >= 0)
                types[step] = type;
        }
    }

    @Override
    long draw(Graphics2D g, long time) {
        while (advance(time))
            continue;
        link = links[shown];
        if (!moving) {
            g.drawImage(frames[shown], 0, 0, null);
            return ended() ? NEVER : Math.min(NEVER, standsUntil() - time);
        }
        int step = (int) ((time - since) / stepMs);
        drawTransition(g, frames[shown], frames[next()], step);
        return stepMs - (time - since) % stepMs;
    }

    private int next() {
        return (shown + 1) % frames.length;
    }

    private boolean ended() {
        return frames.length == 1 || cycles > 0 && cycle == cycles - 1 && next() == 0;
    }

    /** The time at which the standing frame ends; NEVER while it waits for the visitor. */
    private long standsUntil() {
        if (pauses[shown] > 0)
            return since + pauses[shown];
        long sign = pauses[shown] == -1 ? clickedAt : movedAt;
        return sign >= since ? sign : NEVER;
    }

    /** Makes the next change if it is due by this time. */
    private boolean advance(long time) {
        if (moving) {
            long end = since + (transition.equals(OVERWRITE) ? 0 : (long) steps * stepMs);
            if (end > time)
                return false;
            shown = next();
            cycle += shown == 0 ? 1 : 0;
            since = end;
            moving = false;
            if (sounds[shown] != null)
                sounds[shown].play();
            return true;
        }
        long end = ended() ? NEVER : standsUntil();
        if (end > time)
            return false;
        choose(types[shown] == null ? OVERWRITE : types[shown], true);
        since = end;
        moving = true;
        return true;
    }

    private static String nameOf(String type) {
        return type.replaceFirst("\\(.*", "").trim().toLowerCase(Locale.ROOT);
    }

    /** The digits of the directions that a transition has; null when there is no such one. */
    private static String directionsOf(String name) {
        switch (name) {
        case "slidein":
        case "slideout":
            return "12345678";
        case "scroll":
            return "2468";
        case "expand":
        case "shrink":
            return "123456789";
        case "squish":
            return "26";
        case "shutter":
            return "01";
        default:
            return null;
        }
    }

    /** Chooses transition and direction, at random where the type leaves them open. */
    private void choose(String type, boolean mayBeRandom) {
        String name = nameOf(type);
        if (mayBeRandom && name.equals("random")) {
            choose(list[(int) (Math.random() * list.length)], false);
            return;
        }
        String possible = directionsOf(name);
        transition = possible == null ? OVERWRITE : name;
        if (possible == null)
            return;
        String choice = "";
        for (char d : possible.toCharArray())
            choice += named(d, type) ? d : "";
        if (choice.isEmpty())
            choice = name.equals("shutter") ? "1" : possible;
        direction = choice.charAt((int) (Math.random() * choice.length())) - '0';
    }

    /** Whether the brackets of a type hold this direction: "3", "2:4:6:8" or "1-8". */
    private static boolean named(char direction, String type) {
        String inside = type.replaceFirst("^[^(]*\\(?", "").replaceFirst("\\).*$", "").trim();
        if (inside.matches("\\d-\\d"))
            return inside.charAt(0) <= direction && direction <= inside.charAt(2);
        return (":" + inside + ":").contains(":" + direction + ":");
    }

    private void drawTransition(Graphics2D g, BufferedImage going, BufferedImage coming, int step) {
        int width = areaWidth * step / steps;
        int height = areaHeight * step / steps;
        int dx = ACROSS[direction];
        int dy = DOWN[direction];
        switch (transition) {
        case "slidein":
            g.drawImage(going, 0, 0, null);
            g.drawImage(coming, dx * (areaWidth - width), dy * (areaHeight - height), null);
            break;
        case "slideout":
            g.drawImage(coming, 0, 0, null);
            g.drawImage(going, dx * width, dy * height, null);
            break;
        case "scroll":
            g.drawImage(going, -dx * width, -dy * height, null);
            g.drawImage(coming, dx * (areaWidth - width), dy * (areaHeight - height), null);
            break;
        case "expand":
            g.drawImage(going, 0, 0, null);
            drawStretched(g, coming, dx, dy, width, height);
            break;
        case "shrink":
            g.drawImage(coming, 0, 0, null);
            drawStretched(g, going, dx, dy, areaWidth - width, areaHeight - height);
            break;
        case "squish":
            drawStretched(g, coming, 0, -dy, areaWidth, height);
            drawStretched(g, going, 0, dy, areaWidth, areaHeight - height);
            break;
        default:
            drawShutter(g, going, coming, step);
        }
    }

    /** Draws the frame stretched to this size, at the side or corner (dx, dy) of the area. */
    private void drawStretched(Graphics2D g, BufferedImage frame, int dx, int dy, int width,
                               int height) {
        g.drawImage(stretched(frame, width, height), (1 + dx) * (areaWidth - width) / 2,
                    (1 + dy) * (areaHeight - height) / 2, null);
    }

    private void drawShutter(Graphics2D g, BufferedImage going, BufferedImage coming, int step) {
        boolean closing = 2 * step < steps;
        boolean fromMiddle = direction == 0;
        int part = closing ? 2 * step : 2 * step - steps;
        int width = areaWidth * part / steps;
        int height = areaHeight * part / steps;
        // What is left of the shutter's half, where it works toward the middle.
        if (closing != fromMiddle) {
            width = areaWidth - width;
            height = areaHeight - height;
        }
        BufferedImage picture = closing ? going : coming;
        int x = (areaWidth - width) / 2;
        int y = (areaHeight - height) / 2;
        if (fromMiddle)
            g.drawImage(picture, 0, 0, null);
        g.setColor(curtain);
        g.fillRect(fromMiddle ? x : 0, fromMiddle ? y : 0, fromMiddle ? width : areaWidth,
                   fromMiddle ? height : areaHeight);
        if (!fromMiddle)
            g.drawImage(picture, x, y, x + width, y + height, x, y, x + width, y + height, null);
    }
}
