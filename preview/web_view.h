#pragma once

#include "core/dialogs.h"
#include "core/text.h"

#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <vector>

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

    /// The page no longer runs, and the view is empty.
    virtual void PageEnded(PageEnd end) = 0;
};

/// The embedded browser. It loads the page file and files beside it that it is given, and nothing
/// else from the disk or from any network.
class WebView : public QWidget
{
public:
    using QWidget::QWidget;

    /// Shows the page file, which may read the files with these names in its folder. The page shown
    /// before is unloaded, and the windows that it opened close.
    virtual void ShowPage(TextView path, const std::vector<Text>& files) = 0;

    /// Unloads the page, with its sounds and windows.
    virtual void Clear() = 0;

    /// The id of the render process; 0 when there is none.
    virtual std::int64_t RendererPid() const = 0;

    /// Runs a script in the page and hands its value to `result`. For tests alone.
    virtual void Evaluate(const QString& script, std::function<void(const QVariant&)> result) = 0;
};

/// Makes a view; or gives null, and puts into `refusal` for the author why the engine was not
/// started. The owner must outlive the view.
using MakeWebView = WebView* (*)(WebViewOwner& owner, QWidget* parent, Text& refusal);

/// The name of the shared library with the view, and of the function in it that is a MakeWebView.
inline constexpr const char* webViewModule = "orvane_web_view";
inline constexpr const char* makeWebViewName = "OrvaneMakeWebView";

} // namespace orvane
