#pragma once

#include "core/dialogs.h"
#include "core/preview_pane.h"
#include "core/text.h"

namespace orvane {

/// Why a page ended without being left.
enum class PageEnd
{
    Crashed,
    Hung, ///< it did not answer and was stopped
};

/// What the web view asks of its owner, and tells it.
class WebViewOwner
{
public:
    virtual ~WebViewOwner() = default;

    /// Shows a box of the page and gives the author's answer; the page waits meanwhile.
    virtual PageBoxReply AnswerBox(const PageBox& box) = 0;

    /// Whether the page may open a window; called for each one that it wants.
    virtual bool MayOpenWindow() = 0;

    /// A live page has taken the place of the page before it.
    virtual void LivePageShown() = 0;

    /// The author pointed to a place in the live page.
    virtual void PlacePointed(const PointedPlace& place) = 0;

    /// The page file is about to be read, for the first time or again, and must exist.
    virtual void PageNeeded() = 0;

    /// The page file has been read, or reading it has failed.
    virtual void PageRead() = 0;

    /// The page wrote this into its status line; empty when a page begins.
    virtual void StatusWritten(TextView status) = 0;

    /// The page wants to go to an address, which is given encoded and is empty when it is not
    /// valid, or to a file (then `target` is its path) outside of the preview. `byAuthor`: the
    /// author has clicked or typed in the page since the last such call.
    virtual void OutsideWanted(TextView target, bool byAuthor) = 0;

    /// The page no longer runs, and the view is empty or shows the last picture of it.
    virtual void PageEnded(PageEnd end) = 0;
};

} // namespace orvane
