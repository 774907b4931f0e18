import java.io.File;
import java.lang.reflect.*;
import java.nio.file.*;

/** Runs every case and counts; each method without arguments that is not private is one. */
final class AllApplets {
    public static void main(String[] arguments) throws Exception {
        Cases.expected = Paths.get(arguments[0]);
        Cases.folder = Files.createTempDirectory("applets");
        Cases.writeImages();
        int passed = 0;
        int failed = 0;
        for (String name : new String[] {"AnimationCases", "TypewriterCases", "PictureCases"})
            for (Method method : Class.forName(name).getDeclaredMethods())
                if (method.getModifiers() == Modifier.STATIC && method.getParameterCount() == 0) {
                    boolean passes = passes(method);
                    passed += passes ? 1 : 0;
                    failed += passes ? 0 : 1;
                }
        for (File file : Cases.folder.toFile().listFiles())
            Files.delete(file.toPath());
        Files.delete(Cases.folder);
        System.out.println(passed + " passed, " + failed + " failed");
        System.exit(failed == 0 && passed > 0 ? 0 : 1);
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
