#include "tests/tour/program.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QtWebEngineQuick>

#include <unistd.h>

namespace orvane::testing {

namespace {

/// A screen of that many pixels to the point, drawn in memory.
void UseLaptop(int scale)
{
    QDir().mkpath(picturesFolder);
    const QString config = picturesFolder + QStringLiteral("/screen.json");
    QFile file(config);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral(R"({"screens": [{"name": "laptop", "x": 0, "y": 0, "width": %1,
        "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                   .arg(1366 * scale)
                   .arg(768 * scale)
                   .toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.toUtf8());
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
}

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::Link, QColor(90, 160, 240));
    return palette;
}

} // namespace

} // namespace orvane::testing

/// `--scale 2` doubles every size, `--dark` takes a dark palette; the pictures get a folder of
/// their own then.
int main(int argc, char** argv)
{
    using namespace orvane::testing;
    ::testing::InitGoogleTest(&argc, argv);
    picturesFolder = tourFolder + QStringLiteral("/pictures");
    // A display slows the engine down even when nothing is drawn on it.
    unsetenv("DISPLAY");
    qputenv("QT_LOGGING_RULES", "qt.webenginecontext*=false");
    bool isDark = false;
    int scale = 1;
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]) == "--scale" && i + 1 < argc) {
            scale = std::max(1, std::atoi(argv[++i]));
            picturesFolder += u'_' + QString::number(100 * scale);
        } else if (QByteArray(argv[i]) == "--dark") {
            isDark = true;
            picturesFolder += QStringLiteral("_dark");
        }
    }
    UseLaptop(scale);
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QtWebEngineQuick::initialize();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (isDark)
        QApplication::setPalette(DarkPalette());
    QDir(tourFolder + QStringLiteral("/home")).removeRecursively();
    Program owned;
    program = &owned;
    return RUN_ALL_TESTS();
}
