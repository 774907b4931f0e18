#pragma once

#include "core/payload.h"
#include "core/workbench.h"

namespace orvane {

/// Where a preview is shown.
enum class PreviewMode
{
    Inline,   ///< in the embedded browser
    Browser1, ///< in the author's own browser
};

/// The text of the page that shows the effect in a centred table.
Text PreviewPageText(const FinishedPayload& payload, PreviewMode mode);

/// The full path of the preview page.
Text PreviewPagePath(const OrvaneCore& core);

/// Shows the preview page. Says so when there is no code or the page cannot be written. A browser's
/// page stays as it is until it is removed, and the pane keeps its hands off it. True when the
/// author's browser did not start and the author wants to see the preferences.
[[nodiscard]] bool LinkToBrowser(Workbench& bench, const FinishedPayload& payload,
                                 PreviewMode mode);

} // namespace orvane
