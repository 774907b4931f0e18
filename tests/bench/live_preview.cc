#include "core/draft.h"
#include "disk/disk_file_store.h"
#include "disk/system_calls.h"
#include "effects/effect_windows.h"
#include "effects/effects.h"
#include "preview/live_preview_panel.h"
#include "preview/qt_preview_pane.h"
#include "program/qt_resources.h"
#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>

// Measures the live preview beside a wizard, by its first argument:
//   ticker|cube|slideshow FOLDER   milliseconds from each of 60 keys to the changed picture, one a
//                                  line, then "handler" and the longest time that the window's
//                                  thread spent on one event; leaves the last page in FOLDER
//   open                           milliseconds until a wizard is on screen, without and with it
//   memory                         kB of all processes with the preview open, and 500 changes later
namespace orvane {
namespace {

/// Notes how long the longest event took.
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;
    double LongestMs = 0;

    bool notify(QObject* receiver, QEvent* event) override
    {
        QElapsedTimer watch;
        watch.start();
        const bool isDone = QApplication::notify(receiver, event);
        LongestMs = std::max(LongestMs, static_cast<double>(watch.nsecsElapsed()) / 1e6);
        return isDone;
    }
};

/// A pane that keeps the page that it was to show last.
class KeepingPane : public QtPreviewPane
{
public:
    using QtPreviewPane::QtPreviewPane;
    LivePage Last;

    void ShowLive(const LivePage& page) override
    {
        Last = page;
        QtPreviewPane::ShowLive(page);
    }
};

/// A filled-in effect that is measured, and the control by which it is changed.
struct Measured
{
    EffectKind Kind;
    Text Draft;
    const char* Control;
};

Measured FindMeasured(const QByteArray& name, const Text& folder)
{
    RequiredFiles pictures;
    pictures.RequiredFileNames = {u"a.gif", u"b.gif"};
    pictures.RequiredFileSources = {folder + u"/a.gif", folder + u"/b.gif"};
    if (name == "cube") {
        ImageEffects cube{.EffectPicker = u"Image Cube", .ImageFile = u"a.gif"};
        cube.ImageWidth = cube.ImageHeight = u"200";
        cube.Required = pictures;
        return {EffectKind::ImageEffects, WriteDraft(cube), "RotationSlider"};
    }
    if (name == "slideshow") {
        Slideshow show{.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.gif"}}};
        show.Required = pictures;
        return {EffectKind::Slideshow, WriteDraft(show), "txtSlideDuration"};
    }
    return {EffectKind::StatusBarTicker, WriteDraft(StatusBarTicker{u"Welcome"}),
            "txtStatusBarText"};
}

/// A wizard with its live preview, over doubles and the real disk.
class Scene
{
public:
    explicit Scene(const QByteArray& name, bool hasPreview = true)
    {
        m_fake.Core.ProgramFolder = FromQt(m_home.path());
        InstallResources(m_files, m_fake.Dialogs, m_fake.Core.ProgramFolder);
        for (const char* picture : {"a.gif", "b.gif"})
            testing::WriteFile(m_home.filePath(QLatin1String(picture)).toStdString(),
                               testing::GifBytes(200, 200));
        const Measured measured = FindMeasured(name, FromQt(m_home.path()));
        m_control = measured.Control;
        m_wizard = MakeWizard(measured.Kind, m_bench);
        m_wizard->Open(Recipe{measured.Draft});
        if (hasPreview)
            AddPreview();
    }

    WizardForm& Wizard() { return *m_wizard; }

    /// Changes the effect as one key of the author does.
    void PressKey()
    {
        auto* control = m_wizard->findChild<QWidget*>(QLatin1String(m_control));
        if (qobject_cast<QSlider*>(control) != nullptr)
            QTest::keyClick(control, ++m_keys % 20 < 10 ? Qt::Key_Left : Qt::Key_Right);
        else
            QTest::keyClick(control, ++m_keys % 20 < 10 ? Qt::Key_1 : Qt::Key_Backspace);
    }

    /// Runs until the next picture is there.
    void AwaitPicture()
    {
        QEventLoop loop;
        QObject::connect(&Pane, &QtPreviewPane::LiveShown, &loop, &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, [&] { loop.quit(); });
        loop.exec();
    }

private:
    void AddPreview()
    {
        auto* panel =
            new LivePreviewPanel(m_bench, &Pane, [this] { return m_wizard->WouldDeliver(); });
        QObject::connect(m_wizard.get(), &WizardForm::FieldsChanged, panel,
                         &LivePreviewPanel::Update);
        m_wizard->AddSide(panel);
    }

    QTemporaryDir m_home;
    PosixCalls m_calls;
    DiskFileStore m_files{m_calls, FromQt(m_home.path())};
    testing::FakeDesk m_fake;

public:
    KeepingPane Pane{m_fake.Dialogs, m_fake.Shell, m_files};

private:
    Workbench m_bench{.Core = m_fake.Core,
                      .Dialogs = m_fake.Dialogs,
                      .Files = m_files,
                      .Settings = m_fake.Settings,
                      .Shell = m_fake.Shell,
                      .Clipboard = m_fake.Clipboard,
                      .Pane = Pane,
                      .Help = m_fake.Help,
                      .Today = [] { return Text(); },
                      .Clock = [] { return 0.0; }};

    std::unique_ptr<WizardForm> m_wizard;
    const char* m_control = nullptr;
    int m_keys = 0;
};

/// Writes the page and its files, for a bare view to show.
void Keep(const LivePage& page, const QString& folder)
{
    testing::WriteFile((folder + QStringLiteral("/page.html")).toStdString(), page.Bytes);
    for (const PaneFile& file : page.Files)
        QFile::copy(ToQt(file.Path), folder + u'/' + ToQt(file.Name));
}

void MeasureKeys(TimedApplication& application, const QByteArray& name, const QString& folder)
{
    Scene scene(name);
    scene.Wizard().show();
    scene.AwaitPicture();
    application.LongestMs = 0;
    for (int i = 0; i < 60; ++i) {
        QElapsedTimer watch;
        watch.start();
        scene.PressKey();
        scene.AwaitPicture();
        std::printf("%.1f\n", static_cast<double>(watch.nsecsElapsed()) / 1e6);
        QTest::qWait(300);
    }
    std::printf("handler %.1f\n", application.LongestMs);
    Keep(scene.Pane.Last, folder);
}

void MeasureOpening()
{
    for (const bool hasPreview : {false, true}) {
        QElapsedTimer watch;
        watch.start();
        Scene scene("ticker", hasPreview);
        scene.Wizard().show();
        QApplication::processEvents();
        std::printf("%lld ", static_cast<long long>(watch.elapsed()));
    }
}

/// The memory of this process and those that it started, in kB.
long Memory()
{
    QProcess ps;
    ps.start(QStringLiteral("bash"),
             {QStringLiteral("-c"),
              QStringLiteral("cat $(pgrep -g 0 | sed 's#.*#/proc/&/smaps_rollup#') "
                             "| awk '/^Pss:/ {sum += $2} END {print sum}'")});
    ps.waitForFinished();
    return ps.readAllStandardOutput().trimmed().toLong();
}

void MeasureMemory()
{
    Scene scene("ticker");
    scene.Wizard().show();
    scene.AwaitPicture();
    const auto change = [&](int times) {
        for (int i = 0; i < times; ++i) {
            scene.PressKey();
            scene.AwaitPicture();
        }
        QTest::qWait(5000);
        std::printf("%ld ", Memory());
    };
    change(20); // what the engine makes once
    change(500);
}

} // namespace
} // namespace orvane

int main(int argc, char** argv)
{
    using namespace orvane;
    TimedApplication application(argc, argv);
    const QByteArray what = argc > 1 ? argv[1] : "";
    if (what == "open")
        MeasureOpening();
    else if (what == "memory")
        MeasureMemory();
    else
        MeasureKeys(application, what, QString::fromLocal8Bit(argc > 2 ? argv[2] : "."));
    return 0;
}
