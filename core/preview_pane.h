#pragma once

#include "core/fault.h"
#include "core/text.h"

#include <string>

namespace orvane {

/// A page for the pane, and what the pane tells the author beside it.
struct PanePage
{
    Text Path;                 ///< where the page file lies while the page is read
    std::string Bytes;         ///< what the file holds
    Text Note;                 ///< what cannot be seen of the effect, and why; empty: all can
    bool RunsInStatus = false; ///< the effect shows in the status line, outside the page
};

/// The embedded browser of the delivery wizard's first page.
class PreviewPane
{
public:
    virtual ~PreviewPane() = default;

    /// Writes the page file, shows it and deletes it once the page has been read; a fault when it
    /// cannot be written, and the pane stays as it was. A file that was left to a browser is not
    /// touched: the page then lies under a name of its own beside it.
    [[nodiscard]] virtual Done Navigate(const PanePage& page) = 0;

    /// Leaves the page file to the author's browser, which may read it again at any time.
    virtual void LeaveFile() = 0;

    /// Leaves the page: it falls silent, its windows close, and no file counts as left any more.
    virtual void Clear() = 0;
};

} // namespace orvane
