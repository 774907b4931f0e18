import java.applet.Applet;
import java.applet.AudioClip;
import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.net.URL;
import java.nio.ByteBuffer;
import java.nio.charset.CharacterCodingException;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;

/** Loads the files of the typewriter: its text, and the sound of its keys. */
final class AudioLoader3 {
    private AudioLoader3() {}

    /** The sound at an address, or null without one. It is fetched when it is first played. */
    static AudioClip sound(Applet applet, URL address) {
        return address == null ? null : applet.getAudioClip(address);
    }

    /** The text at an address, or null when it cannot be read. */
    static String text(URL address) {
        if (address == null)
            return null;
        try (InputStream in = address.openStream()) {
            ByteArrayOutputStream bytes = new ByteArrayOutputStream();
            byte[] block = new byte[8192];
            for (int read; (read = in.read(block)) > 0;)
                bytes.write(block, 0, read);
            return decoded(bytes.toByteArray());
        } catch (IOException unreadable) {
            return null;
        }
    }

    private static String decoded(byte[] bytes) {
        try {
            String text =
                StandardCharsets.UTF_8.newDecoder().decode(ByteBuffer.wrap(bytes)).toString();
            return text.startsWith("\uFEFF") ? text.substring(1) : text;
        } catch (CharacterCodingException notUtf8) {
            return new String(bytes, Charset.forName("windows-1252"));
        }
    }
}
