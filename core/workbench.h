#pragma once

#include "core/clipboard.h"
#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/help_viewer.h"
#include "core/orvane_core.h"
#include "core/preview_pane.h"
#include "core/settings.h"
#include "core/shell.h"
#include "core/surroundings.h"

#include <functional>
#include <optional>

namespace orvane {

/// Everything that a window works with. The services are references, so that tests can put others
/// in their place.
struct Workbench
{
    OrvaneCore& Core;
    orvane::Dialogs& Dialogs;
    FileStore& Files;
    orvane::Settings& Settings;
    orvane::Shell& Shell;
    orvane::Clipboard& Clipboard;
    PreviewPane& Pane;
    HelpViewer& Help;
    Text Version;                               ///< of this program, such as "1.0.0"
    Text StateFolder;                           ///< the user's folder for drafts and backups
    std::function<Text()> Today;                ///< gives the date, such as "2024-05-31"
    std::function<double()> Clock;              ///< gives the time, as in Surroundings
    std::optional<Text> PlatformBrowserVersion; ///< nothing where no registry can be asked
};

/// What effects may know now.
inline Surroundings SurroundingsOf(const Workbench& bench)
{
    return {bench.Clock(), bench.Core.ProgramFolder};
}

} // namespace orvane
