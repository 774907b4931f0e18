#pragma once

#include "core/help_viewer.h"
#include "core/orvane_core.h"
#include "core/settings.h"
#include "delivery/preview_pane.h"
#include "services/clipboard.h"
#include "services/dialogs.h"
#include "services/file_store.h"
#include "services/shell.h"

#include <functional>
#include <optional>

namespace orvane {

/// Everything that a window works with, by reference, so that a test can put its own in place.
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
    Text Version;                ///< of this program, such as "1.0.0"
    Text StateFolder;            ///< of this user, for what outlives a run and is no setting
    std::function<Text()> Today; ///< such as "2024-05-31"
    std::optional<Text> PlatformBrowserVersion; ///< nothing: the platform has no registry to ask
};

} // namespace orvane
