import java.awt.Cursor;
import java.awt.Graphics;
import java.awt.Graphics2D;
import java.awt.event.MouseEvent;
import java.awt.event.MouseListener;
import java.awt.event.MouseMotionListener;
import java.awt.image.BufferedImage;
import java.util.function.LongSupplier;

/**
 * The base of every applet: a buffer, one thread that sleeps until the picture changes, and the
 * link. A page gets only the class files that its wizard lists, and neither this class nor Tag is
 * one of them. So the build makes one class of both under the name of each class that an applet
 * extends (such as CoolTool3), and copies its members into an applet that extends Stage itself.
 */
abstract class Stage extends Tag implements Runnable, MouseListener, MouseMotionListener {
    /** What {@link #draw} gives when the picture stays as it is. */
    static final long NEVER = Long.MAX_VALUE / 4;
    private static final long NOT_YET = -1;

    /** The time in milliseconds; tests put a clock here that they set themselves. */
    static LongSupplier clock = System::currentTimeMillis;

    /** Where a click leads at this moment, or null. */
    String link;
    /** The frame that links open in, or null for the page's own window. */
    String target;
    /** The time given to draw() of the last click and pointer move; -1 before the first. */
    long clickedAt;
    long movedAt;

    private Thread thread;
    private BufferedImage buffer;
    private long startedAt;
    private long changeAt;

    /** Reads the parameters and waits for the images; runs in the applet's own thread. */
    abstract void prepare() throws InterruptedException;

    /** Draws the picture at a time in milliseconds; gives those until it changes, or NEVER. */
    abstract long draw(Graphics2D g, long time);

    @Override
    public void init() {
        addMouseListener(this);
        addMouseMotionListener(this);
    }

    @Override
    public synchronized void start() {
        startedAt = clickedAt = movedAt = NOT_YET;
        changeAt = NEVER;
        problem = link = null;
        buffer = null;
        areaWidth = Math.max(1, getWidth());
        areaHeight = Math.max(1, getHeight());
        thread = new Thread(this, getClass().getName());
        thread.setDaemon(true);
        thread.start();
    }

    @Override
    public synchronized void stop() {
        if (thread != null)
            thread.interrupt();
        thread = null;
        startedAt = NOT_YET;
    }

    @Override
    public void run() {
        try {
            prepare();
            if (!begin())
                return;
            while (sleepUntilChange())
                repaint();
        } catch (InterruptedException pageHasGone) {
            return;
        }
    }

    private boolean ownThread() {
        return Thread.currentThread() == thread;
    }

    private synchronized boolean begin() {
        if (!ownThread())
            return false;
        startedAt = changeAt = clock.getAsLong();
        return true;
    }

    /** False when the page has gone. Painting sets the next change's time and ends the wait. */
    private synchronized boolean sleepUntilChange() throws InterruptedException {
        while (ownThread()) {
            long left = changeAt - clock.getAsLong();
            if (left <= 0) {
                changeAt = NEVER;
                return true;
            }
            wait(Math.min(left, 60000));
        }
        return false;
    }

    /** True while time runs: every image has come or failed, and the page is shown. */
    synchronized boolean started() {
        return startedAt != NOT_YET;
    }

    @Override
    public void update(Graphics g) {
        paint(g);
    }

    @Override
    public synchronized void paint(Graphics g) {
        if (started())
            compose();
        if (buffer != null) {
            g.drawImage(buffer, 0, 0, null);
        } else {
            g.setColor(background);
            g.fillRect(0, 0, areaWidth, areaHeight);
        }
    }

    private void compose() {
        if (buffer == null)
            buffer = blank(areaWidth, areaHeight);
        Graphics2D g = buffer.createGraphics();
        long now = clock.getAsLong();
        if (problem == null) {
            changeAt = now + draw(g, now - startedAt);
        } else {
            say(g, problem);
            changeAt = NEVER;
        }
        g.dispose();
        int shape = link == null ? Cursor.DEFAULT_CURSOR : Cursor.HAND_CURSOR;
        if (getCursor().getType() != shape)
            setCursor(Cursor.getPredefinedCursor(shape));
        notifyAll();
    }

    @Override
    public void mousePressed(MouseEvent event) {
        String to;
        synchronized (this) {
            if (!started() || event.getButton() != MouseEvent.BUTTON1)
                return;
            compose();
            to = link;
            clickedAt = clock.getAsLong() - startedAt;
        }
        repaint();
        if (to != null && address(to) != null)
            getAppletContext().showDocument(address(to), target == null ? "_self" : target);
    }

    @Override
    public synchronized void mouseMoved(MouseEvent event) {
        if (!started())
            return;
        movedAt = clock.getAsLong() - startedAt;
        changeAt = Math.min(changeAt, clock.getAsLong());
        notifyAll();
    }

    @Override
    public void mouseDragged(MouseEvent event) {
        mouseMoved(event);
    }

    @Override
    public void mouseEntered(MouseEvent event) {
        mouseMoved(event);
    }

    @Override
    public void mouseExited(MouseEvent event) {}

    @Override
    public void mouseReleased(MouseEvent event) {}

    @Override
    public void mouseClicked(MouseEvent event) {}
}
