import java.applet.*;
import java.awt.Toolkit;
import java.awt.event.MouseEvent;
import java.awt.image.BufferedImage;
import java.lang.reflect.*;
import java.net.URL;
import java.util.*;
import java.util.function.LongSupplier;
import java.util.regex.*;

/** A browser of one page with one applet: it reads the tag, owns the clock, and records. */
final class Host {
    private static final Pattern PARAM =
        Pattern.compile("<PARAM NAME=\"?([^\" ]+)\"? VALUE=(?:\"([^\"]*)\"|([^>]*))");
    private static final long START = 1000000;

    final Applet applet;
    /** What was opened, each address behind its frame. */
    final List<String> opened = new ArrayList<>();
    final List<String> played = new ArrayList<>();
    private final Map<String, String> parameters = new HashMap<>();
    private final URL page;
    private long now = START;

    /** Starts the applet of a page's text, which lies at an address, and waits for its images. */
    Host(String text, URL address) throws Exception {
        page = address;
        for (Matcher param = PARAM.matcher(text); param.find();)
            parameters.put(param.group(1).toUpperCase(Locale.ROOT),
                           param.group(2) == null ? param.group(3) : param.group(2));
        String code = attribute(text, "CODE").replace(".class", "");
        applet = (Applet) Class.forName(code).getConstructor().newInstance();
        useClock(() -> now);
        applet.setStub(proxy(AppletStub.class));
        applet.setSize(Integer.parseInt(attribute(text, "WIDTH")),
                       Integer.parseInt(attribute(text, "HEIGHT")));
        applet.init();
        applet.start();
        Method started = clock().getDeclaringClass().getDeclaredMethod("started");
        for (int i = 0; i < 1000 && !(Boolean) started.invoke(applet); i++)
            Thread.sleep(5);
    }

    private static String attribute(String page, String name) {
        return page.replaceFirst("(?s).*?<APPLET [^>]*\\b" + name + "=\"([^\"]*)\".*", "$1");
    }

    private Field clock() throws NoSuchFieldException {
        Class<?> owner = applet.getClass();
        while (owner.getSuperclass() != Applet.class)
            owner = owner.getSuperclass();
        return owner.getDeclaredField("clock");
    }

    void useClock(LongSupplier clock) throws Exception {
        clock().set(null, clock);
    }

    /** The picture at a time counted from the applet's beginning. */
    BufferedImage at(long time) {
        now = START + time;
        BufferedImage picture =
            new BufferedImage(applet.getWidth(), applet.getHeight(), BufferedImage.TYPE_INT_RGB);
        applet.paint(picture.getGraphics());
        return picture;
    }

    void click(long time) {
        mouse(time, MouseEvent.MOUSE_PRESSED, MouseEvent.BUTTON1);
    }

    void move(long time) {
        mouse(time, MouseEvent.MOUSE_MOVED, MouseEvent.NOBUTTON);
    }

    private void mouse(long time, int kind, int button) {
        now = START + time;
        applet.dispatchEvent(new MouseEvent(applet, kind, now, 0, 5, 5, 1, false, button));
    }

    private <T> T proxy(Class<T> face) {
        return face.cast(Proxy.newProxyInstance(
            Host.class.getClassLoader(), new Class<?>[] {face},
            (self, method, arguments) -> answer(method.getName(), arguments)));
    }

    /** What the applet asks its browser for, whichever of the two interfaces it asks. */
    private Object answer(String question, Object[] asked) {
        switch (question) {
        case "getParameter":
            return parameters.get(asked[0].toString().toUpperCase(Locale.ROOT));
        case "getDocumentBase":
            return page;
        case "getAppletContext":
            return proxy(AppletContext.class);
        case "getImage":
            return Toolkit.getDefaultToolkit().createImage((URL) asked[0]);
        case "getAudioClip":
            String name = ((URL) asked[0]).getPath().replaceFirst(".*/", "");
            return Proxy.newProxyInstance(Host.class.getClassLoader(),
                                          new Class<?>[] {AudioClip.class},
                                          (self, method, none) -> played.add(name) ? null : null);
        case "showDocument":
            opened.add(asked[1] + " " + asked[0]);
            return null;
        case "appletResize":
            return null;
        default:
            throw new AssertionError(question + " is not expected");
        }
    }
}
