import java.awt.Color;
import java.awt.Graphics2D;
import java.awt.image.BufferedImage;

/** A cube that turns about its middle and shows the same image on each face. */
public class TmapCube extends TmapCubeb {
    private static final int FRAME_MS = 40;
    private static final double HALF_EDGE = 25;

    private BufferedImage picture;
    private BufferedImage image;
    private int distance;
    private int block;
    private int[] spin;
    private boolean clearing;

    @Override
    void prepare() throws InterruptedException {
        background = new Color(channel(number("BACKR", 192)), channel(number("BACKG", 192)),
                               channel(number("BACKB", 192)));
        distance = Math.max(50, number("DISTANCE", 70));
        block = Math.max(1, number("RES", 1));
        spin = new int[] {number("ROTX", 10), number("ROTY", 10), number("ROTZ", 10)};
        String clear = value("CLEARBACK");
        clearing = clear == null || clear.equalsIgnoreCase("YES");
        image = wantedImage("IMAGE");
        picture = blank(areaWidth, areaHeight);
    }

    @Override
    long draw(Graphics2D g, long time) {
        double[][] turn = turn(time);
        double depth = 0.6 * Math.min(areaWidth, areaHeight);
        double middleX = areaWidth / 2.0;
        double middleY = areaHeight / 2.0;
        int[] pixels = pixels(picture);
        // No corner ever comes farther from the middle than this.
        double radius = HALF_EDGE * Math.sqrt(3);
        int reach =
            (int) (depth * radius / Math.sqrt((double) distance * distance - radius * radius)) + 1;
        for (int y = first(middleY - reach); y < Math.min(areaHeight, middleY + reach);
             y += block) {
            for (int x = first(middleX - reach); x < Math.min(areaWidth, middleX + reach);
                 x += block) {
                int color = seen(turn, x + 0.5 - middleX, y + 0.5 - middleY, depth);
                if (color != 0 || clearing)
                    fill(pixels, x, y, color != 0 ? color : background.getRGB());
            }
        }
        g.drawImage(picture, 0, 0, null);
        return FRAME_MS - time % FRAME_MS;
    }

    /** The first column or row of the block of pixels that this one belongs to. */
    private int first(double at) {
        int pixel = Math.max(0, (int) at);
        return pixel - pixel % block;
    }

    private void fill(int[] pixels, int left, int top, int color) {
        for (int y = top; y < Math.min(top + block, areaHeight); y++)
            for (int x = left; x < Math.min(left + block, areaWidth); x++)
                pixels[y * areaWidth + x] = color;
    }

    /** The directions of the cube's own axes at this time, in the viewer's x, y and z. */
    private double[][] turn(long time) {
        double[][] axes = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
        for (double[] axis : axes) {
            for (int about = 0; about < 3; about++) {
                double angle = Math.toRadians(4.0 * spin[about] * time / 1000);
                rotate(axis, (about + 1) % 3, (about + 2) % 3, angle);
            }
        }
        return axes;
    }

    private static void rotate(double[] point, int from, int to, double angle) {
        double a = point[from];
        double b = point[to];
        point[from] = a * Math.cos(angle) - b * Math.sin(angle);
        point[to] = a * Math.sin(angle) + b * Math.cos(angle);
    }

    /** The colour seen in the direction (x, y, z) from the eye; 0 when the cube is not there. */
    private int seen(double[][] turn, double x, double y, double z) {
        double near = 0;
        double far = Double.MAX_VALUE;
        int face = -1;
        double[] eye = new double[3];
        double[] way = new double[3];
        for (int axis = 0; axis < 3; axis++) {
            double[] own = turn[axis];
            eye[axis] = -distance * own[2];
            way[axis] = x * own[0] + y * own[1] + z * own[2];
            if (way[axis] == 0) {
                if (Math.abs(eye[axis]) > HALF_EDGE)
                    return 0;
                continue;
            }
            double enter = (-Math.signum(way[axis]) * HALF_EDGE - eye[axis]) / way[axis];
            double leave = (Math.signum(way[axis]) * HALF_EDGE - eye[axis]) / way[axis];
            if (enter > near) {
                near = enter;
                face = axis;
            }
            far = Math.min(far, leave);
        }
        if (face < 0 || near > far)
            return 0;
        for (int axis = 0; axis < 3; axis++)
            eye[axis] += near * way[axis];
        return faceColor(eye, face);
    }

    /** The image's colour at a point of the face that is at right angles to an axis. */
    private int faceColor(double[] point, int axis) {
        boolean positive = point[axis] > 0;
        if (axis == 0)
            return texel(positive ? point[2] : -point[2], point[1]);
        if (axis == 1)
            return texel(point[0], positive ? point[2] : -point[2]);
        return texel(positive ? -point[0] : point[0], point[1]);
    }

    private int texel(double u, double v) {
        int x = along(u, image.getWidth());
        int y = along(v, image.getHeight());
        return image.getRGB(x, y);
    }

    private static int along(double at, int size) {
        int pixel = (int) Math.floor((at + HALF_EDGE) * size / (2 * HALF_EDGE));
        return Math.max(0, Math.min(size - 1, pixel));
    }
}
