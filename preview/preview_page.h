#pragma once

#include "core/payload.h"
#include "core/workbench.h"

#include <functional>

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

/// Writes the preview page and shows it. Says so when there is no code or the page cannot be
/// written; when the author's browser does not start, offers the preferences by `showOptions`.
void LinkToBrowser(Workbench& bench, const FinishedPayload& payload, PreviewMode mode,
                   const std::function<void()>& showOptions);

} // namespace orvane
