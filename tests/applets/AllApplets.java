import java.lang.reflect.*;
import java.nio.file.*;

/** Runs every case: each method without arguments that is not private. The first fault ends all. */
final class AllApplets {
    public static void main(String[] arguments) throws Exception {
        Thread.setDefaultUncaughtExceptionHandler((thread, fault) -> {
            fault.printStackTrace();
            System.exit(1);
        });
        Cases.expected = Paths.get(arguments[0]);
        Cases.folder = Files.createDirectories(Paths.get(arguments[1]));
        Cases.writeImages();
        int passed = 0;
        for (Class<?> cases :
             new Class<?>[] {AnimationCases.class, TypewriterCases.class, PictureCases.class})
            for (Method method : cases.getDeclaredMethods())
                if (method.getModifiers() == Modifier.STATIC && method.getParameterCount() == 0) {
                    method.invoke(null);
                    passed++;
                }
        System.out.println(passed + " passed");
        System.exit(passed > 0 ? 0 : 1);
    }
}
