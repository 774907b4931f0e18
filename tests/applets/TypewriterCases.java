import java.awt.*;
import java.awt.image.BufferedImage;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;

/** The typewriter: what stands when, where lines break, files, cycles and link. */
final class TypewriterCases extends Cases {
    private static final Font PLAIN = new Font("Dialog", Font.PLAIN, 12);

    /** Lines as they are to stand on a picture. */
    private static BufferedImage typed(BufferedImage on, Font font, Color ink, String[] lines) {
        Graphics2D g = on.createGraphics();
        g.setFont(font);
        g.setColor(ink);
        FontMetrics metrics = g.getFontMetrics();
        for (int i = 0; i < lines.length; i++)
            g.drawString(lines[i], 4, 4 + metrics.getAscent() + i * metrics.getHeight());
        return on;
    }

    private static BufferedImage onPaper(String... lines) {
        return typed(filled(300, 80, PAPER), new Font("Monospaced", Font.BOLD | Font.ITALIC, 24),
                     Color.blue, lines);
    }

    private static BufferedImage bare(int width, String... lines) {
        return typed(filled(width, 50, (x, y) -> 0xffffffff), PLAIN, Color.black, lines);
    }

    private static BufferedImage night(String... lines) {
        return typed(filled(200, 50, (x, y) -> 0xff0a141e), new Font("Arial", Font.ITALIC, 12),
                     Color.yellow, lines);
    }

    static void typesOnPaper() throws Exception {
        Host host = host(page("typewriter_full.html"));
        samePicture("nothing yet", onPaper(), host.at(100));
        samePicture("next line", onPaper("Welcome to", "my"), host.at(12 * 101 + 100));
        // Two lines of 24 pixels fit into 80: the first one gives way to the third.
        samePicture("third line", onPaper("my home page!", "E"), host.at(24 * 101));
        samePicture("held", onPaper("my home page!", "Enjoy."), host.at(29 * 101 + 1999));
        samePicture("again", onPaper(), host.at(29 * 101 + 2000));
        host.click(5000);
        same("link", "[_self http://WWW.example.com/x.html]", host.opened.toString());
        host = host(page("typewriter_bare.html"));
        samePicture("in cycle 1001", bare(200, "He"), host.at(1000 * 3255 + 2 * 251));
    }

    static void readsTextFile() throws Exception {
        Files.write(folder.resolve("my words.txt"),
                    "Gr\u00fc\u00dfe  \r\nC:\\x".getBytes("windows-1252"));
        Host host = host(page("typewriter_file.html"));
        samePicture("Windows-1252", night("Gr\u00fc\u00dfe", "C:\\x"), host.at(9 * 251));
        Files.write(folder.resolve("my words.txt"), "\u0394\nx".getBytes(StandardCharsets.UTF_8));
        host = host(page("typewriter_file.html"));
        samePicture("UTF-8", night("\u0394", "x"), host.at(2 * 251));
        samePicture("after both", night("\u0394", "x"), host.at(9999999));
    }

    static void breaksLongLines() throws Exception {
        String word = "aVeryLongWordThatIsWiderThanALineCanEverBe";
        FontMetrics metrics = bare(200).createGraphics().getFontMetrics(PLAIN);
        int fits = 1;
        while (metrics.stringWidth(word.substring(0, fits + 1)) <= 192)
            fits++;
        Host host = host(with(page("typewriter_bare.html"), "TEXT.0", "First " + word));
        samePicture("broken", bare(200, "First", word.substring(0, fits), word.substring(fits)),
                    host.at((5 + word.length()) * 251));
        host = host(with(page("typewriter_bare.html").replace("200", "5"), "TEXT.0", "a\\\\b"));
        samePicture("without room for a letter", bare(5, "a", "", "b"), host.at(2 * 251));
    }

    static void saysWhatItLacks() throws Exception {
        String page = page("typewriter_file.html");
        says(with(page, "TEXTFILE", "no.txt"), "The text file \"no.txt\" could not be loaded.");
        says(without(page, "TEXTFILE"), "The parameter TEXT.0 is missing.");
        says(with(page, "BACKGROUND", "x"), "The image \"x\" could not be loaded.");
    }
}
