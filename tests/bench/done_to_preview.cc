#include "core/file_names.h"
#include "delivery/preview_form.h"
#include "disk/disk_file_store.h"
#include "disk/system_calls.h"
#include "effects/text/status_bar_ticker.h"
#include "effects/text/status_bar_ticker_form.h"
#include "preview/qt_preview_pane.h"
#include "tests/support/doubles.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

// Prints the milliseconds from Done in a wizard to the page in the preview. With "warm" as its
// argument the web view was loaded before, as it is once a wizard has been open for a moment.
using namespace orvane;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool isWarm = argc > 1 && QByteArray(argv[1]) == "warm";
    QTemporaryDir home;
    PosixCalls calls;
    DiskFileStore files(calls, FromQt(home.path()));
    orvane::testing::FakeDesk desk;
    desk.Core.ProgramFolder = FromQt(home.path());
    QtPreviewPane pane(desk.Dialogs, desk.Shell, files);
    Workbench bench{.Core = desk.Core,
                    .Dialogs = desk.Dialogs,
                    .Files = files,
                    .Settings = desk.Settings,
                    .Shell = desk.Shell,
                    .Clipboard = desk.Clipboard,
                    .Pane = pane,
                    .Help = desk.Help};
    // The wizard stands on screen until Done is pressed; whoever shows the first window of all pays
    // for fonts and style.
    StatusBarTickerForm wizard(bench);
    wizard.show();
    QElapsedTimer watch;
    std::unique_ptr<PreviewForm> form;
    QTimer poll;
    // The page file is deleted once the engine has read the page.
    QObject::connect(&poll, &QTimer::timeout, &application, [&] {
        if (files.FileExists(PreviewPagePath(desk.Core)))
            return;
        std::printf("%lld\n", static_cast<long long>(watch.elapsed()));
        QApplication::quit();
    });
    const auto press = [&] {
        watch.start();
        wizard.hide();
        form = std::make_unique<PreviewForm>(bench, Generate(StatusBarTicker{u"Welcome"}), &pane,
                                             PreviewWindows());
        form->show();
        QTimer::singleShot(0, &poll, [&] { poll.start(1); });
    };
    if (isWarm)
        pane.Warm();
    QTimer::singleShot(isWarm ? 2000 : 0, &application, press);
    return QApplication::exec();
}
