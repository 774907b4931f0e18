#pragma once

#include "core/payload.h"
#include "core/workbench.h"

namespace orvane {

/// Where a preview is shown.
enum class PreviewMode
{
    Inline,   ///< in the embedded browser
    Live,     ///< beside the fields, where "Run again" takes the place of "Refresh"
    Browser1, ///< in the author's own browser
};

/// The text of the preview page, with the effect in a centred table; for the password script of a
/// Web server, a page that says why it cannot be tested.
Text PreviewPageText(const FinishedPayload& payload, PreviewMode mode);

/// The full path of the preview page.
Text PreviewPagePath(const OrvaneCore& core);

/// The name of the page that the pane shows while a browser has the preview page; it lies beside
/// that.
inline constexpr TextView panePageName = u"ov-pane.htm";

/// Removes the preview pages that a killed program left.
void RemovePreviewPages(FileStore& files, const OrvaneCore& core);

/// Writes the preview page and shows it; tells the author when there is no code or the page cannot
/// be written. A page for the author's browser is left on the disk, and the pane is told so by
/// LeaveFile(). True when the author's browser did not start and the author wants to see the
/// preferences.
[[nodiscard]] bool LinkToBrowser(Workbench& bench, const FinishedPayload& payload,
                                 PreviewMode mode);

} // namespace orvane
