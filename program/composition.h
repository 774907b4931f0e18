#pragma once

#include "disk/disk_file_store.h"
#include "disk/program_folder.h"
#include "disk/settings_file.h"
#include "help/help_form.h"
#include "preview/qt_preview_pane.h"
#include "program/form_desk.h"

#include <functional>

namespace orvane {

/// The user's files and settings on the real disk.
struct Disk
{
    /// The calls must outlive this object.
    Disk(SystemCalls& calls, const UserFolders& folders)
        : Files(calls, folders.State), Settings(Files, folders.Settings)
    {
    }

    DiskFileStore Files;
    SettingsFile Settings;
};

/// What a run of the program meets outside of itself and its disk.
struct Outside
{
    orvane::Dialogs& Dialogs;
    orvane::Shell& Shell;
    orvane::Clipboard& Clipboard;
    Text Version;
    std::function<Text()> Today;   ///< gives the date, as in Workbench
    std::function<double()> Clock; ///< gives the time, as in Workbench
};

/// The whole program of one run, put together from its parts: shared state, preview, help, and the
/// desk that opens the windows. Nothing is shown before Desk.Start().
struct Composition
{
    /// The disk and what `outside` refers to must outlive this object.
    Composition(const UserFolders& folders, Disk& disk, const Outside& outside);

    OrvaneCore Core;
    QtPreviewPane Pane;
    HelpForm Help;
    Workbench Bench;
    FormDesk Desk;
};

} // namespace orvane
