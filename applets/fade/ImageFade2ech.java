import java.awt.Graphics2D;
import java.awt.image.BufferedImage;
import java.util.List;

/** Images that are stretched to the area and fade into one another. */
public class ImageFade2ech extends Pixelator3 {
    private BufferedImage[] images;
    private String[] links;
    private BufferedImage mixed;
    private int pause;
    private int steps;
    private int stepsPerSecond;

    @Override
    void prepare() throws InterruptedException {
        pause = number("PAUSE", 100);
        pause = pause < 0 ? 100 : pause;
        steps = number("TRANSITION.STEPS", 15);
        steps = steps < 1 ? 15 : steps;
        stepsPerSecond = number("TRANSITION.SPEED", 40);
        stepsPerSecond = stepsPerSecond < 1 ? 40 : stepsPerSecond;
        target = value("TARGET");
        List<String> names = values("IMAGE");
        if (names.isEmpty())
            problem = missing("IMAGE.0");
        images = new BufferedImage[names.size()];
        links = new String[names.size()];
        for (int i = 0; i < images.length; i++) {
            images[i] = stretched(imageOrWords(names.get(i)), areaWidth, areaHeight);
            links[i] = linkIn("URL." + i);
        }
        mixed = blank(areaWidth, areaHeight);
    }

    @Override
    long draw(Graphics2D g, long time) {
        long fade = (1000L * steps + stepsPerSecond - 1) / stepsPerSecond;
        int shown = (int) (time / (pause + fade) % images.length);
        long since = time % (pause + fade);
        link = links[shown];
        if (since < pause || images.length == 1) {
            g.drawImage(images[shown], 0, 0, null);
            return images.length == 1 ? NEVER : pause - since;
        }
        long step = (since - pause) * stepsPerSecond / 1000;
        mix(images[shown], images[(shown + 1) % images.length], (int) step);
        g.drawImage(mixed, 0, 0, null);
        long nextStep = (1000 * (step + 1) + stepsPerSecond - 1) / stepsPerSecond;
        return Math.min(nextStep, fade) - (since - pause);
    }

    private void mix(BufferedImage going, BufferedImage coming, int step) {
        int[] a = pixels(going);
        int[] b = pixels(coming);
        int[] to = pixels(mixed);
        for (int i = 0; i < to.length; i++)
            to[i] = mix(a[i], b[i], step, 16) | mix(a[i], b[i], step, 8) | mix(a[i], b[i], step, 0);
    }

    private int mix(int a, int b, int step, int shift) {
        int channel = ((a >> shift & 255) * (steps - step) + (b >> shift & 255) * step) / steps;
        return channel << shift;
    }
}
