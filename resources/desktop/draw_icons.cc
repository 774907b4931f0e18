// Draws a picture as square PNG files: draw_icons PICTURE FILE... Each file's folder is named after
// its size, such as icons/48x48/apps/name.png. Runs at build time, without a display.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include <cstdio>
#include <cstdlib>

namespace {

/// The size that a path names in its first folder of the form "48x48"; 0 when there is none.
int SizeOf(const QString& path)
{
    for (const QString& folder : path.split(u'/'))
        if (const int size = folder.section(u'x', 0, 0).toInt();
            size > 0 && folder == QStringLiteral("%1x%1").arg(size))
            return size;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString& path : arguments.mid(2)) {
        QImageReader picture(arguments[1]);
        picture.setScaledSize(QSize(SizeOf(path), SizeOf(path)));
        QDir().mkpath(QFileInfo(path).path());
        if (!picture.read().save(path)) {
            std::fprintf(stderr, "draw_icons: no picture %s from %s\n", qPrintable(path),
                         qPrintable(arguments[1]));
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
