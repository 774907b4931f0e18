import java.nio.charset.StandardCharsets;
import java.nio.file.*;
import javax.imageio.ImageIO;

/** Draws pages of a folder: each argument is a page's name and times, such as "cube 0 300". */
final class Pictures {
    public static void main(String[] arguments) throws Exception {
        Cases.folder = Paths.get(arguments[0]);
        Cases.writeImages();
        for (int i = 1; i < arguments.length; i++) {
            String[] part = arguments[i].split(" ");
            Path page = Cases.folder.resolve(part[0] + ".html");
            String text = new String(Files.readAllBytes(page), StandardCharsets.ISO_8859_1);
            Host host = new Host(text, page.toUri().toURL());
            for (int j = 1; j < part.length; j++)
                ImageIO.write(host.at(Long.parseLong(part[j])), "png",
                              Cases.folder.resolve(part[0] + "-" + part[j] + ".png").toFile());
            host.applet.stop();
        }
        System.exit(0);
    }
}
