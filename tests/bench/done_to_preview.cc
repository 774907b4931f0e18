#include "core/catalogue.h"
#include "disk/disk_file_store.h"
#include "disk/system_calls.h"
#include "preview/preview_page.h"
#include "preview/qt_preview_pane.h"
#include "program/form_desk.h"
#include "tests/support/doubles.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>

// Prints the milliseconds from the author's click on "Done" in a wizard to the page in the preview.
// With "warm" as its argument the web view was loaded before, as it is once a wizard has been open
// for a moment.
namespace orvane {
namespace {

/// The disk, which tells when the engine has read the preview page: the page is removed then.
class WatchedFiles : public DiskFileStore
{
public:
    using DiskFileStore::DiskFileStore;
    Text Page;
    std::function<void()> PageRead;

    Done Remove(TextView path) override
    {
        const Done done = DiskFileStore::Remove(path);
        if (!FaultIn(done) && path == Page)
            PageRead();
        return done;
    }
};

int Run(QApplication& application, bool isWarm)
{
    QTemporaryDir home;
    PosixCalls calls;
    WatchedFiles files(calls, FromQt(home.path()));
    testing::FakeDesk fake;
    fake.Core.ProgramFolder = FromQt(home.path());
    QtPreviewPane pane(fake.Dialogs, fake.Shell, files);
    Workbench bench{.Core = fake.Core,
                    .Dialogs = fake.Dialogs,
                    .Files = files,
                    .Settings = fake.Settings,
                    .Shell = fake.Shell,
                    .Clipboard = fake.Clipboard,
                    .Pane = pane,
                    .Help = fake.Help,
                    .Today = [] { return Text(); },
                    .Clock = [] { return 0.0; }};
    // The preview beside the fields would have loaded the web view already.
    bench.Settings.Put(settingKeys::previewFolded, u"1");
    FormDesk desk(bench, &pane);
    QElapsedTimer watch;
    files.Page = PreviewPagePath(fake.Core);
    files.PageRead = [&] {
        std::printf("%lld\n", static_cast<long long>(watch.elapsed()));
        QApplication::quit();
    };
    if (isWarm)
        QObject::connect(&desk, &FormDesk::WizardOpened, &pane, &QtPreviewPane::Warm);
    QTimer::singleShot(0, &application, [&] {
        // The wizard's own loop is in the call below.
        QTimer::singleShot(isWarm ? 2000 : 0, &application, [&] {
            QWidget* wizard = QApplication::activeModalWidget();
            wizard->findChild<QLineEdit*>(QStringLiteral("txtStatusBarText"))
                ->setText(QStringLiteral("Welcome"));
            watch.start();
            wizard->findChild<QPushButton*>(QStringLiteral("cmdDone"))->click();
        });
        desk.OpenEffect(EffectKind::StatusBarTicker);
    });
    return QApplication::exec();
}

} // namespace
} // namespace orvane

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    return orvane::Run(application, argc > 1 && QByteArray(argv[1]) == "warm");
}
