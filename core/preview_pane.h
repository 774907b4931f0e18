#pragma once

#include "core/fault.h"
#include "core/text.h"

#include <string>
#include <vector>

namespace orvane {

/// A page for the pane to show, and what the pane tells the author beside it.
struct PanePage
{
    Text Path;                 ///< where the page file lies while the page is read
    std::string Bytes;         ///< what the file holds
    std::vector<Text> Files;   ///< names of files beside it; the page can read no others
    Text Note;                 ///< what cannot be seen of the effect, and why; empty when all can
    bool RunsInStatus = false; ///< the effect shows in the status line, outside the page
};

/// The embedded browser of the delivery wizard's first page.
class PreviewPane
{
public:
    virtual ~PreviewPane() = default;

    /// Writes the page file, shows it, and deletes it once the browser has read it. Gives the fault
    /// when it cannot be written; then the pane still shows what it showed. While a file is left to
    /// the author's browser, the page is written to a file of another name in the same folder.
    [[nodiscard]] virtual Done Navigate(const PanePage& page) = 0;

    /// From now on keeps the page file for the author's browser, which may read it at any time: the
    /// pane neither deletes nor overwrites it until Clear().
    virtual void LeaveFile() = 0;

    /// Unloads the page, with its sounds and windows, and ends what LeaveFile() began.
    virtual void Clear() = 0;
};

} // namespace orvane
