#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

/// Loads the page file again and again; prints the milliseconds until it is drawn, one a line.
int LoadAgain(const QUrl& url)
{
    QElapsedTimer watch;
    int left = 60;
    QWebEngineView view;
    view.resize(400, 300);
    view.show();
    const auto load = [&] {
        watch.start();
        view.load(url);
    };
    QObject::connect(&view, &QWebEngineView::loadFinished, &view, [&] {
        view.page()->runJavaScript(
            QStringLiteral("{let left = 3; const next = () => left--"
                           " ? requestAnimationFrame(next) : document.title = 'drawn'; next()}"),
            QWebEngineScript::ApplicationWorld);
    });
    QObject::connect(&view, &QWebEngineView::titleChanged, &view, [&](const QString& title) {
        if (title != QLatin1String("drawn"))
            return;
        std::printf("%.1f\n", static_cast<double>(watch.nsecsElapsed()) / 1e6);
        if (--left == 0)
            QApplication::quit();
        QTimer::singleShot(300, &view, load);
    });
    load();
    return QApplication::exec();
}

} // namespace

// What the preview is measured against: a bare web view that shows a page file. Prints milliseconds
// from the start of the program, given in START_NS, or with "warm" from the call in a view that is
// ready but not yet on screen; with "again" and the path of a page, as LoadAgain() says.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc > 2)
        return LoadAgain(QUrl::fromLocalFile(QString::fromLocal8Bit(argv[2])));
    const bool isWarm = argc > 1 && QByteArray(argv[1]) == "warm";
    QTemporaryDir folder;
    QFile page(folder.filePath(QStringLiteral("page.html")));
    if (!page.open(QIODevice::WriteOnly))
        return 1;
    page.write("<HTML><BODY onload=\"window.status='x'\">Welcome</BODY></HTML>");
    page.close();

    QWebEngineView view;
    if (!isWarm)
        view.show();
    QElapsedTimer watch;
    QObject::connect(&view, &QWebEngineView::loadFinished, &application, [&] {
        if (isWarm && !watch.isValid()) {
            QTimer::singleShot(2000, &view, [&] {
                watch.start();
                view.show();
                view.load(QUrl::fromLocalFile(page.fileName()));
            });
            return;
        }
        using std::chrono::system_clock;
        const char* start = std::getenv("START_NS");
        const long long now = std::chrono::duration_cast<std::chrono::nanoseconds>(
                                  system_clock::now().time_since_epoch())
                                  .count();
        const long long sinceStart = start == nullptr ? 0 : (now - std::atoll(start)) / 1000000;
        std::printf("%lld\n", isWarm ? static_cast<long long>(watch.elapsed()) : sinceStart);
        QApplication::quit();
    });
    view.load(isWarm ? QUrl(QStringLiteral("about:blank")) : QUrl::fromLocalFile(page.fileName()));
    return QApplication::exec();
}
