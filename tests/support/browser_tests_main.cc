#include <gtest/gtest.h>

#include <QApplication>

#include <unistd.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // A display slows the engine down even when nothing is drawn on it.
    unsetenv("DISPLAY");
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "qt.webenginecontext*=false", 0);
    if (geteuid() == 0)
        setenv("QTWEBENGINE_DISABLE_SANDBOX", "1", 0);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
