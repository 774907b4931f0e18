#pragma once

#include "core/dialogs.h"
#include "core/text.h"

#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <functional>

namespace orvane {

/// Why a page came to an end by itself.
enum class PageEnd
{
    Crashed,
    Hung, ///< it did not answer and was stopped
};

/// What the web view asks and tells its owner.
class WebViewOwner
{
public:
    virtual ~WebViewOwner() = default;

    /// Shows a box of the page and gives the author's answer; the page waits meanwhile.
    virtual PageBoxReply AnswerBox(const PageBox& box) = 0;

    /// The page file is about to be read, perhaps once more, and must exist.
    virtual void PageNeeded() = 0;

    /// The page file has been read, or reading it has failed.
    virtual void PageRead() = 0;

    /// The page wrote this into its status line; empty when a page begins.
    virtual void StatusWritten(TextView status) = 0;

    /// The page leads to an address, or the path of a file, outside; `byAuthor` when the author has
    /// clicked or typed in it since the last time.
    virtual void OutsideWanted(TextView target, bool byAuthor) = 0;

    /// The page no longer runs, and the view is empty.
    virtual void PageEnded(PageEnd end) = 0;
};

/// The embedded browser. It reads files below the page's folder and nothing else.
class WebView : public QWidget
{
public:
    using QWidget::QWidget;

    /// Shows the page file in place of what was shown, whose windows close.
    virtual void ShowPage(TextView path) = 0;

    /// Leaves the page: it falls silent, and its windows close.
    virtual void Clear() = 0;

    /// The process that runs the page; 0 when there is none.
    virtual std::int64_t RendererPid() const = 0;

    /// Runs a script in the page and hands its value to `result`. For tests alone.
    virtual void Evaluate(const QString& script, std::function<void(const QVariant&)> result) = 0;
};

/// Makes a view, or gives null and, in `refusal`, why the engine was left alone. The owner must
/// outlive the view.
using MakeWebView = WebView* (*)(WebViewOwner& owner, QWidget* parent, Text& refusal);

/// The module that holds the view, and the function in it.
inline constexpr const char* webViewModule = "orvane_web_view";
inline constexpr const char* makeWebViewName = "OrvaneMakeWebView";

} // namespace orvane
