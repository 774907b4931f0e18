import java.applet.Applet;
import java.awt.Color;
import java.awt.Font;
import java.awt.FontMetrics;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.Image;
import java.awt.MediaTracker;
import java.awt.image.BufferedImage;
import java.awt.image.DataBufferInt;
import java.net.MalformedURLException;
import java.net.URL;
import java.util.ArrayList;
import java.util.List;

/** What an applet reads from its tag and the files beside the page, and says where they lack. */
abstract class Tag extends Applet {
    /** What is wrong with the whole applet, shown instead of the picture; null when nothing is. */
    String problem;
    Color background = Color.white;
    int areaWidth;
    int areaHeight;

    /** The value of a parameter without blanks around it; null when it is missing. */
    String value(String name) {
        String value = getParameter(name);
        return value == null || value.trim().isEmpty() ? null : value.trim();
    }

    /** The whole number that the parameter begins with, else `missing`. */
    int number(String name, int missing) {
        return leadingNumber(value(name), missing);
    }

    /** The whole number that a text begins with, at most a million up or down; else `missing`. */
    static int leadingNumber(String text, int missing) {
        String digits = text == null ? "" : text.trim().replaceFirst("^([+-]?\\d{0,9}).*$", "$1");
        try {
            return Math.max(-1000000, Math.min(1000000, Integer.parseInt(digits)));
        } catch (NumberFormatException noNumber) {
            return missing;
        }
    }

    /** The colour of a parameter "r,g,b", else `missing`. */
    Color color(String name, Color missing) {
        String value = value(name);
        String[] channels = value == null ? new String[0] : value.split(",");
        if (channels.length < 3)
            return missing;
        int[] rgb = new int[3];
        for (int i = 0; i < 3; i++) {
            if (leadingNumber(channels[i], 0) != leadingNumber(channels[i], 1))
                return missing;
            rgb[i] = channel(leadingNumber(channels[i], 0));
        }
        return new Color(rgb[0], rgb[1], rgb[2]);
    }

    static int channel(int value) {
        return Math.max(0, Math.min(255, value));
    }

    /** The values of NAME.0, NAME.1, ... up to the first that is missing. */
    List<String> values(String name) {
        List<String> values = new ArrayList<>();
        for (String value; (value = value(name + "." + values.size())) != null;)
            values.add(value);
        return values;
    }

    /** The link of a parameter, or null when there is none. */
    String linkIn(String parameter) {
        String value = value(parameter);
        return "null".equals(value) ? null : value;
    }

    /** The address of a file beside the page; null when the name makes no valid address. */
    URL address(String name) {
        try {
            return new URL(getDocumentBase(), name);
        } catch (MalformedURLException noAddress) {
            return null;
        }
    }

    /** Waits for an image and draws it on the background colour; null when it cannot be loaded. */
    BufferedImage image(String name) throws InterruptedException {
        if (address(name) == null)
            return null;
        Image loaded = getImage(address(name));
        MediaTracker tracker = new MediaTracker(this);
        tracker.addImage(loaded, 0);
        tracker.waitForAll();
        if (tracker.isErrorAny() || loaded.getWidth(null) < 1)
            return null;
        BufferedImage image = blank(loaded.getWidth(null), loaded.getHeight(null));
        image.getGraphics().drawImage(loaded, 0, 0, null);
        loaded.flush();
        return image;
    }

    /** The image that a parameter names; null, with `problem` set, when it cannot be loaded. */
    BufferedImage wantedImage(String parameter) throws InterruptedException {
        String name = value(parameter);
        BufferedImage image = name == null ? null : image(name);
        if (name == null)
            problem = missing(parameter);
        else if (image == null)
            problem = notLoaded("image", name);
        return image;
    }

    /** The image, or a picture of the area's size with words when it cannot be loaded. */
    BufferedImage imageOrWords(String name) throws InterruptedException {
        BufferedImage image = image(name);
        if (image != null)
            return image;
        BufferedImage words = blank(areaWidth, areaHeight);
        say(words.createGraphics(), notLoaded("image", name));
        return words;
    }

    static String missing(String parameter) {
        return "The parameter " + parameter + " is missing.";
    }

    static String notLoaded(String kind, String name) {
        return "The " + kind + " \"" + name + "\" could not be loaded.";
    }

    /** A picture of this size in the background colour. */
    BufferedImage blank(int width, int height) {
        BufferedImage picture = new BufferedImage(width, height, BufferedImage.TYPE_INT_RGB);
        Graphics g = picture.getGraphics();
        g.setColor(background);
        g.fillRect(0, 0, width, height);
        return picture;
    }

    /** The pixels of a picture, row by row; changing them changes the picture. */
    static int[] pixels(BufferedImage picture) {
        return ((DataBufferInt) picture.getRaster().getDataBuffer()).getData();
    }

    /** The picture in another size, without smoothing; null without a picture or size. */
    static BufferedImage stretched(BufferedImage from, int width, int height) {
        if (from == null || width < 1 || height < 1)
            return null;
        BufferedImage to = new BufferedImage(width, height, BufferedImage.TYPE_INT_RGB);
        int[] source = pixels(from);
        int[] drawn = pixels(to);
        for (int y = 0; y < height; y++) {
            int row = (2 * y + 1) * from.getHeight() / (2 * height) * from.getWidth();
            for (int x = 0; x < width; x++)
                drawn[y * width + x] = source[row + (2 * x + 1) * from.getWidth() / (2 * width)];
        }
        return to;
    }

    /** Fills the area with words, lines broken at blanks. */
    void say(Graphics2D g, String words) {
        g.setColor(Color.white);
        g.fillRect(0, 0, areaWidth, areaHeight);
        g.setColor(Color.black);
        g.setFont(new Font("SansSerif", Font.PLAIN, 12));
        int y = 16;
        for (String line : broken(words, g.getFontMetrics(), areaWidth - 8)) {
            g.drawString(line, 4, y);
            y += 15;
        }
    }

    /** The line broken at blanks to a width in pixels; a word wider than that is broken itself. */
    static List<String> broken(String line, FontMetrics metrics, int width) {
        List<String> lines = new ArrayList<>();
        String left = line;
        while (!left.isEmpty() && metrics.stringWidth(left) > width) {
            int fits = 1;
            while (fits < left.length() &&
                   metrics.stringWidth(left.substring(0, fits + 1)) <= width)
                fits++;
            int blank = left.lastIndexOf(' ', fits);
            int end = blank > 0 ? blank : fits;
            lines.add(left.substring(0, end));
            left = left.substring(blank > 0 ? end + 1 : end);
            if (left.isEmpty())
                return lines;
        }
        lines.add(left);
        return lines;
    }
}
