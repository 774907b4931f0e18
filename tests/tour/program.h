#pragma once

#include "program/composition.h"
#include "program/ov_main_form.h"
#include "program/qt_resources.h"
#include "tests/tour/guide.h"
#include "windows/qt_text.h"

namespace orvane::testing {

/// Where tours leave their pages, and where their sample files are.
inline const QString tourFolder = QStringLiteral(ORVANE_TOUR_FOLDER);
inline const QString samplesFolder = QStringLiteral(ORVANE_TOUR_SOURCES "/samples");
inline QString picturesFolder; ///< where this run keeps its pictures

/// Prepared answers, and the same answers every time to what previewed pages ask: their boxes are
/// accepted, and no address outside of the preview is opened.
class TourDialogs : public FakeDialogs
{
public:
    bool Ask(TextView words, TextView title) override
    {
        return !words.starts_with(u"The page leads out of the preview") &&
               FakeDialogs::Ask(words, title);
    }
    PageBoxReply Answer(const PageBox&) override { return {.Accepted = true, .Entered = u"Jane"}; }
};

/// The whole program with its real windows, disk and browser engine, in a folder of its own;
/// dialogs, shell and clipboard are doubles.
struct Program
{
    Program()
    {
        InstallResources(OnDisk.Files, Dialogs, Whole.Core.ProgramFolder, u"tour");
        Whole.Bench.Settings.Put(settingKeys::defaultPath, FromQt(samplesFolder));
        Whole.Desk.Start();
        Guide.emplace(*Whole.Desk.MainForm(), Dialogs);
        Guide->Passing = [this](const QWidget& front) {
            if (front.objectName() == QStringLiteral("Preview"))
                Previewed = Whole.Core.Payload;
        };
    }

    const Text Home = FromQt(tourFolder + QStringLiteral("/home"));
    const UserFolders Folders{Home, Home + u"/settings", Home + u"/state"};
    PosixCalls Calls;
    Disk OnDisk{Calls, Folders};
    TourDialogs Dialogs;
    FakeShell Shell;
    FakeClipboard Clipboard;
    Composition Whole{Folders,
                      OnDisk,
                      {.Dialogs = Dialogs,
                       .Shell = Shell,
                       .Clipboard = Clipboard,
                       .Version = u"1.0.0",
                       .Today = [] { return Text(u"2024-05-31"); },
                       .Clock = [] { return 37865.270585185123; }}};
    EffectPayload Previewed; ///< the payload that was previewed last
    std::optional<testing::Guide> Guide;
};

/// The one program in which all tours run, one after the other; null before the first.
inline Program* program = nullptr;

} // namespace orvane::testing
