import java.io.File;
import java.lang.reflect.*;
import java.nio.file.*;

/** Runs every case and counts; each method without arguments that is not private is one. */
final class AllApplets {
    public static void main(String[] arguments) throws Exception {
        Cases.expected = Paths.get(arguments[0]);
        Cases.folder = Files.createTempDirectory("applets");
        Cases.writeImages();
        int[] counts = new int[2];
        for (Class<?> cases :
             new Class<?>[] {AnimationCases.class, TypewriterCases.class, PictureCases.class})
            for (Method method : cases.getDeclaredMethods())
                if (method.getModifiers() == Modifier.STATIC && method.getParameterCount() == 0)
                    counts[passes(method) ? 0 : 1]++;
        for (File file : Cases.folder.toFile().listFiles())
            Files.delete(file.toPath());
        Files.delete(Cases.folder);
        System.out.println(counts[0] + " passed, " + counts[1] + " failed");
        System.exit(counts[1] == 0 && counts[0] > 0 ? 0 : 1);
    }

    private static boolean passes(Method method) throws IllegalAccessException {
        try {
            method.invoke(null);
            return true;
        } catch (InvocationTargetException fault) {
            System.out.println("FAILED: " + method.getName());
            fault.getCause().printStackTrace(System.out);
            return false;
        }
    }
}
