import java.applet.AudioClip;
import java.awt.Color;
import java.awt.Font;
import java.awt.FontMetrics;
import java.awt.Graphics2D;
import java.awt.image.BufferedImage;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;

/** A text that is typed letter by letter. */
public class Typewriter9 extends CoolTool3 {
    private static final int MARGIN = 4;
    private static final int HOLD_MS = 2000;

    private List<String> lines;
    private int letters;
    private int speed;
    private int cycles;
    private Font font;
    private FontMetrics metrics;
    private Color ink;
    private BufferedImage tile;
    private AudioClip key;
    private int typed;

    @Override
    void prepare() throws InterruptedException {
        background = color("BGCOLOR", Color.white);
        ink = color("FGCOLOR", Color.black);
        target = value("TARGET");
        link = linkIn("URL");
        speed = Math.max(1, number("SPEED", 100));
        cycles = number("CYCLES", 0);
        key = AudioLoader3.sound(this, value("SOUND") == null ? null : address(value("SOUND")));
        font = font();
        metrics = blank(1, 1).getGraphics().getFontMetrics(font);
        typed = 0;
        tile = value("BACKGROUND") == null ? null : wantedImage("BACKGROUND");
        lines = new ArrayList<>();
        letters = 0;
        for (String line : textLines())
            for (String part : broken(line.replaceFirst("\\s+$", ""), metrics, areaWidth - 8)) {
                lines.add(part);
                letters += part.length();
            }
    }

    private Font font() {
        String name = value("FONTNAME");
        String style = value("FONTSTYLE");
        style = style == null ? "" : style.toLowerCase(Locale.ROOT);
        int bold = style.contains("bold") ? Font.BOLD : Font.PLAIN;
        int italic = style.contains("italic") ? Font.ITALIC : Font.PLAIN;
        int size = number("FONTSIZE", 12);
        return new Font(logical(name == null ? "Dialog" : name), bold | italic,
                        size < 1 ? 12 : size);
    }

    /** The Java font for a font name as the wizard offers it. */
    private static String logical(String name) {
        switch (name) {
        case "Helvetica":
            return Font.SANS_SERIF;
        case "TimesRoman":
            return Font.SERIF;
        case "Courier":
            return Font.MONOSPACED;
        default:
            return name;
        }
    }

    /** The lines as the text itself divides them; none, with `problem` set, without a text. */
    private String[] textLines() {
        if (value("TEXT.0") != null)
            return getParameter("TEXT.0").split("\\\\", -1);
        String file = value("TEXTFILE");
        String text = file == null ? null : AudioLoader3.text(address(file));
        if (text == null)
            problem = file == null ? missing("TEXT.0") : notLoaded("text file", file);
        return text == null ? new String[0] : text.split("\r\n|\n|\r");
    }

    @Override
    long draw(Graphics2D g, long time) {
        long cycle = (long) letters * speed + HOLD_MS;
        boolean ended = cycles > 0 && time >= cycles * cycle - HOLD_MS;
        long since = ended ? cycle - HOLD_MS : time % cycle;
        int standing = (int) Math.min(letters, since / speed);
        if (key != null && standing > typed)
            key.play();
        typed = standing;
        drawBackground(g);
        g.setFont(font);
        g.setColor(ink);
        drawLetters(g, standing);
        if (ended)
            return NEVER;
        return standing == letters ? cycle - since : speed - since % speed;
    }

    private void drawBackground(Graphics2D g) {
        g.setColor(background);
        g.fillRect(0, 0, areaWidth, areaHeight);
        if (tile == null)
            return;
        for (int y = 0; y < areaHeight; y += tile.getHeight())
            for (int x = 0; x < areaWidth; x += tile.getWidth())
                g.drawImage(tile, x, y, null);
    }

    private void drawLetters(Graphics2D g, int count) {
        int last = 0;
        for (int left = count; last < lines.size() - 1 && left > lines.get(last).length(); last++)
            left -= lines.get(last).length();
        int whole = (areaHeight - MARGIN) / metrics.getHeight();
        int first = Math.max(0, last + 1 - Math.max(1, whole));
        int left = count;
        for (int i = 0; i <= last && i < lines.size(); i++) {
            String line = lines.get(i);
            String part = line.substring(0, Math.min(left, line.length()));
            left -= part.length();
            if (i >= first)
                g.drawString(part, MARGIN,
                             MARGIN + metrics.getAscent() + metrics.getHeight() * (i - first));
        }
    }
}
