import java.awt.Graphics2D;
import java.awt.image.BufferedImage;

/** An image above its own reflection in moving water. */
public class Lake extends Stage {
    private BufferedImage image;

    @Override
    void prepare() throws InterruptedException {
        link = value("HREF");
        target = value("TARGET");
        image = stretched(wantedImage("IMAGE"), areaWidth, (areaHeight + 10) / 2);
    }

    @Override
    long draw(Graphics2D g, long time) {
        int shore = image.getHeight();
        g.drawImage(image, 0, 0, null);
        for (int y = shore; y < areaHeight; y++) {
            int row = mirrored(y - shore, shore, time);
            g.drawImage(image, 0, y, areaWidth, y + 1, 0, row, areaWidth, row + 1, null);
        }
        return 50 - time % 50;
    }

    /** The row of the image that the water shows this many rows below the image. */
    private static int mirrored(int distance, int height, long time) {
        double swell = 1 + 4.0 * distance / height;
        double wave = swell * Math.sin(2 * Math.PI * (distance / 16.0 - time / 1000.0));
        int row = height - 1 - distance + (int) Math.floor(wave + 0.5);
        return Math.max(0, Math.min(height - 1, row));
    }
}
