#include "core/draft.h"
#include "effects/effects.h"
#include "preview/live_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_live_desk.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>

// Measures the live preview beside a wizard, by its first argument:
//   ticker|cube|slideshow FOLDER   milliseconds from each of 60 keys to the changed picture, one a
//                                  line, then "handler" and the longest time that a key cost the
//                                  window's thread; leaves the last page in FOLDER
//   open                           milliseconds until a wizard is on screen, without and with it
//   memory                         kB of all processes with the preview open, and 480 changes later
namespace orvane {
namespace {

/// The processor time of this thread, which no other program on the machine prolongs.
double ThreadMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Notes the longest time that a key cost a window: its event, or what the window does later.
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;
    const QObject* Window = nullptr;
    const QObject* Pane = nullptr; ///< in the window; what happens in it is the engine's
    double LongestMs = 0;

    bool notify(QObject* receiver, QEvent* event) override
    {
        const bool isOfKey = IsOfKey(event->type()) && LiesInWindow(receiver);
        const double before = ThreadMs();
        const bool isDone = QApplication::notify(receiver, event);
        if (isOfKey)
            LongestMs = std::max(LongestMs, ThreadMs() - before);
        return isDone;
    }

private:
    static bool IsOfKey(QEvent::Type type)
    {
        return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::Timer ||
               type == QEvent::MetaCall;
    }
    bool LiesInWindow(const QObject* object) const
    {
        while (object != nullptr && object != Window && object != Pane)
            object = object->parent();
        return object != nullptr && object == Window;
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
        return {EffectKind::Slideshow, WriteDraft(show), "chkRepeat"};
    }
    return {EffectKind::StatusBarTicker, WriteDraft(StatusBarTicker{u"Welcome"}),
            "txtStatusBarText"};
}

/// Changes the effect as one key of the author does.
void PressKey(WizardForm& wizard, const char* name)
{
    static int keys = 0;
    const bool isForth = ++keys % 20 < 10;
    auto* control = wizard.findChild<QWidget*>(QLatin1String(name));
    if (auto* line = qobject_cast<QLineEdit*>(control))
        line->end(false); // what opens selected would be replaced by the first key
    if (qobject_cast<QSlider*>(control) != nullptr)
        QTest::keyClick(control, isForth ? Qt::Key_Left : Qt::Key_Right);
    else if (qobject_cast<QCheckBox*>(control) != nullptr)
        QTest::keyClick(control, Qt::Key_Space);
    else
        QTest::keyClick(control, isForth ? Qt::Key_1 : Qt::Key_Backspace);
}

/// Runs until the next picture is there.
void AwaitPicture(testing::LiveDesk& desk)
{
    QEventLoop loop;
    QObject::connect(&desk.Page.Pane, &QtPreviewPane::LiveShown, &loop, &QEventLoop::quit);
    QTimer::singleShot(5000, &loop, [&] { loop.quit(); });
    loop.exec();
}

/// Writes the page and its files, for a bare view to show.
void Keep(const LivePage& page, const QString& folder)
{
    testing::WriteFile((folder + QStringLiteral("/page.html")).toStdString(), *page.Bytes);
    for (const PaneFile& file : page.Files)
        QFile::copy(ToQt(file.Path), folder + u'/' + ToQt(file.Name));
}

void MeasureKeys(TimedApplication& application, const QByteArray& name, const QString& folder)
{
    testing::LiveDesk desk;
    const Measured measured = FindMeasured(name, desk.Folder());
    const auto wizard = desk.Open(measured.Kind, measured.Draft);
    AwaitPicture(desk);
    QTest::qWait(1000);
    application.Pane = &desk.Page.Pane;
    application.Window = wizard.get();
    for (int i = 0; i < 60; ++i) {
        QElapsedTimer watch;
        watch.start();
        PressKey(*wizard, measured.Control);
        AwaitPicture(desk);
        std::printf("%.1f\n", static_cast<double>(watch.nsecsElapsed()) / 1e6);
        QTest::qWait(300);
    }
    std::printf("handler %.1f\n", application.LongestMs);
    application.Window = nullptr;
    const Deliverable made = wizard->WouldDeliver();
    Keep(PictureOf(std::get<EffectPayload>(made), {}, desk.Bench.Files, desk.Folder()).Page,
         folder);
}

void MeasureOpening()
{
    testing::LiveDesk desk;
    const Measured measured = FindMeasured("ticker", desk.Folder());
    // The first window of a program takes longer, whatever is in it.
    desk.Open(measured.Kind, measured.Draft, false);
    for (const bool hasPreview : {false, true}) {
        QElapsedTimer watch;
        watch.start();
        const auto wizard = desk.Open(measured.Kind, measured.Draft, hasPreview);
        std::printf("%.1f ", static_cast<double>(watch.nsecsElapsed()) / 1e6);
    }
    std::printf("\n");
}

/// The memory of this process and those that it started, in kB; not that of program files, of which
/// each has a share as large as few other programs use them.
long Memory()
{
    QProcess ps;
    ps.start(QStringLiteral("bash"),
             {QStringLiteral("-c"),
              QStringLiteral("cat $(pgrep -g 0 | sed 's#.*#/proc/&/smaps_rollup#') "
                             "| awk '/^Pss_(Anon|Shmem):/ {sum += $2} END {print sum}'")});
    ps.waitForFinished();
    return ps.readAllStandardOutput().trimmed().toLong();
}

void MeasureMemory()
{
    testing::LiveDesk desk;
    const Measured measured = FindMeasured("ticker", desk.Folder());
    const auto wizard = desk.Open(measured.Kind, measured.Draft);
    AwaitPicture(desk);
    const auto change = [&](int times) {
        for (int i = 0; i < times; ++i) {
            PressKey(*wizard, measured.Control);
            AwaitPicture(desk);
        }
        // The engine gives back in its own time what it does not need.
        long least = Memory();
        for (int second = 0; second < 15; ++second) {
            QTest::qWait(1000);
            least = std::min(least, Memory());
        }
        std::printf("%ld ", least);
    };
    // What the engine makes once; both counts end where it begins with a new process for the page.
    change(40);
    change(480);
    std::printf("\n");
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
