#pragma once

#include "disk/disk_file_store.h"
#include "disk/settings_file.h"
#include "disk/system_calls.h"
#include "help/help_form.h"
#include "preview/qt_preview_pane.h"
#include "program/form_desk.h"
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
        Core.ProgramFolder = FromQt(tourFolder + QStringLiteral("/home"));
        InstallResources(Files, Dialogs, Core.ProgramFolder);
        Bench.Settings.Put(u"Misc", u"DefaultPath", FromQt(samplesFolder));
        Desk.Start();
        Guide.emplace(*Desk.MainForm(), Dialogs);
        Guide->Passing = [this](const QWidget& front) {
            if (front.objectName() == QStringLiteral("Preview"))
                Previewed = Core.Payload;
        };
    }

    PosixCalls Calls;
    DiskFileStore Files{Calls, FromQt(tourFolder + QStringLiteral("/home/state"))};
    SettingsFile Settings{Files, FromQt(tourFolder + QStringLiteral("/home/settings"))};
    TourDialogs Dialogs;
    FakeShell Shell;
    FakeClipboard Clipboard;
    OrvaneCore Core;
    QtPreviewPane Pane{Dialogs, Shell, Files};
    HelpForm Help{Files, Shell, FromQt(tourFolder + QStringLiteral("/home")),
                  FormDesk::ListEffectsOfTags()};
    Workbench Bench{.Core = Core,
                    .Dialogs = Dialogs,
                    .Files = Files,
                    .Settings = Settings,
                    .Shell = Shell,
                    .Clipboard = Clipboard,
                    .Pane = Pane,
                    .Help = Help,
                    .Version = u"1.0.0",
                    .StateFolder = FromQt(tourFolder + QStringLiteral("/home/state")),
                    .Today = [] { return Text(u"2024-05-31"); },
                    .Clock = [] { return 37865.270585185123; }};
    FormDesk Desk{Bench, &Pane};
    EffectPayload Previewed; ///< the payload that was previewed last
    std::optional<testing::Guide> Guide;
};

/// The one program in which all tours run, one after the other; null before the first.
inline Program* program = nullptr;

} // namespace orvane::testing
