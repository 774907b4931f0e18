import java.awt.Graphics2D;
import java.awt.image.BufferedImage;

/** An image through which rings run outward from its middle. */
public class ripple extends Stage {
    private static final int FRAME_MS = 50;
    private BufferedImage image;
    /** The pictures of one wave, each made when it is first shown. */
    private BufferedImage[] frames;
    private int period;

    @Override
    void prepare() throws InterruptedException {
        int count = number("FRAMES", 15);
        frames = new BufferedImage[count < 1 ? 15 : Math.min(100, count)];
        period = Math.max(1, number("PERIOD", 20));
        image = stretched(wantedImage("IMAGE"), areaWidth, areaHeight);
    }

    @Override
    long draw(Graphics2D g, long time) {
        int frame = (int) (time / FRAME_MS % frames.length);
        if (frames[frame] == null)
            frames[frame] = rippled((double) frame / frames.length);
        g.drawImage(frames[frame], 0, 0, null);
        return FRAME_MS - time % FRAME_MS;
    }

    /** The image when the wave has run through `phase`, 0 to 1, of its period. */
    private BufferedImage rippled(double phase) {
        BufferedImage picture = blank(areaWidth, areaHeight);
        int[] from = pixels(image);
        int[] to = pixels(picture);
        double middleX = (areaWidth - 1) / 2.0;
        double middleY = (areaHeight - 1) / 2.0;
        for (int y = 0; y < areaHeight; y++) {
            for (int x = 0; x < areaWidth; x++) {
                double shift = shift(Math.hypot(x - middleX, y - middleY), phase);
                int column = moved(x, middleX, shift, areaWidth);
                int row = moved(y, middleY, shift, areaHeight);
                to[y * areaWidth + x] = from[row * areaWidth + column];
            }
        }
        return picture;
    }

    /** How much farther out than this distance a pixel takes its colour, as a share of it. */
    private double shift(double distance, double phase) {
        if (distance < 1)
            return 0;
        double height = 1 + period / 10;
        return height * Math.sin(2 * Math.PI * (distance / (2 * period) - phase)) / distance;
    }

    private static int moved(int at, double middle, double shift, int size) {
        int to = at + (int) Math.floor((at - middle) * shift + 0.5);
        return Math.max(0, Math.min(size - 1, to));
    }
}
