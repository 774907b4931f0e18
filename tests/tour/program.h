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

inline const QString tourFolder = QStringLiteral(ORVANE_TOUR_FOLDER);
inline const QString samplesFolder = QStringLiteral(ORVANE_TOUR_SOURCES "/samples");
inline QString picturesFolder; ///< where this run keeps its pictures

/// The author's answers to boxes that no tour is about: boxes of the previewed pages, and whether
/// an address of theirs is to be opened.
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

/// The program as its user has it, with a home of its own.
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
                    .Today = [] { return Text(u"2024-05-31"); }};
    FormDesk Desk{Bench, &Pane};
    EffectPayload Previewed; ///< last
    std::optional<testing::Guide> Guide;
};

/// One for all tours, as an author works.
inline Program* program = nullptr;

} // namespace orvane::testing
