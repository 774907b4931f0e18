import java.applet.*;
import java.awt.Toolkit;
import java.awt.event.MouseEvent;
import java.awt.image.BufferedImage;
import java.lang.reflect.*;
import java.net.URL;
import java.util.*;
import java.util.function.*;
import java.util.regex.*;

/** A browser of one page with one applet: it reads the tag, owns the clock, and records. */
final class Host {
    private static final Pattern PARAM =
        Pattern.compile("<PARAM NAME=\"?([^\" ]+)\"? VALUE=(?:\"([^\"]*)\"|([^>]*))");
    private static final long START = 1000000;

    final Applet applet;
    /** The static clock that the applet reads. */
    final Field clock;
    /** What was opened, each address behind its frame. */
    final List<String> opened = new ArrayList<>();
    final List<String> played = new ArrayList<>();
    private final Map<String, Function<Object[], Object>> answers = new HashMap<>();
    private final Map<String, String> parameters = new HashMap<>();
    private final URL page;
    private long now = START;

    /** Starts the applet of a page's text, which lies at an address, and waits for its images. */
    Host(String text, URL address) throws Exception {
        page = address;
        addAnswers();
        for (Matcher param = PARAM.matcher(text); param.find();)
            parameters.put(param.group(1).toUpperCase(Locale.ROOT),
                           param.group(2) == null ? param.group(3) : param.group(2));
        String code = attribute(text, "CODE").replace(".class", "");
        applet = (Applet) Class.forName(code).getConstructor().newInstance();
        Class<?> stage = applet.getClass();
        while (stage.getSuperclass() != Applet.class)
            stage = stage.getSuperclass();
        clock = stage.getDeclaredField("clock");
        clock.set(null, (LongSupplier) () -> now);
        applet.setStub(proxy(AppletStub.class));
        applet.setSize(Integer.parseInt(attribute(text, "WIDTH")),
                       Integer.parseInt(attribute(text, "HEIGHT")));
        applet.init();
        applet.start();
        Method started = stage.getDeclaredMethod("started");
        for (int i = 0; i < 1000 && !(Boolean) started.invoke(applet); i++)
            Thread.sleep(5);
    }

    private static String attribute(String page, String name) {
        return page.replaceFirst("(?s).*?<APPLET [^>]*\\b" + name + "=\"([^\"]*)\".*", "$1");
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

    void mouse(long time, int kind, int button) {
        now = START + time;
        applet.dispatchEvent(new MouseEvent(applet, kind, now, 0, 5, 5, 1, false, button));
    }

    private <T> T proxy(Class<T> face) {
        return proxy(face, (self, question, asked) -> answers.get(question.getName()).apply(asked));
    }

    private static <T> T proxy(Class<T> face, InvocationHandler answer) {
        return face.cast(
            Proxy.newProxyInstance(Host.class.getClassLoader(), new Class<?>[] {face}, answer));
    }

    /** What an applet may ask its browser for, by whichever of two interfaces; nothing else. */
    private void addAnswers() {
        answers.put("getParameter",
                    asked -> parameters.get(asked[0].toString().toUpperCase(Locale.ROOT)));
        answers.put("getDocumentBase", asked -> page);
        answers.put("getAppletContext", asked -> proxy(AppletContext.class));
        answers.put("getImage", asked -> Toolkit.getDefaultToolkit().createImage((URL) asked[0]));
        answers.put("getAudioClip", asked -> proxy(AudioClip.class, (clip, question, none) -> {
                        return played.add(((URL) asked[0]).getPath().replaceFirst(".*/", ""));
                    }));
        answers.put("showDocument", asked -> opened.add(asked[1] + " " + asked[0]));
        answers.put("appletResize", asked -> null);
    }
}
