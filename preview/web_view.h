#pragma once

#include "core/preview_pane.h"
#include "preview/web_view_owner.h"

#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <vector>

namespace orvane {

/// The embedded browser. It loads the page file and files beside it that it is given, and nothing
/// else from the disk or from any network.
class WebView : public QWidget
{
public:
    using QWidget::QWidget;

    /// Shows the page file, which may read the files with these names in its folder. The page shown
    /// before is unloaded, and the windows that it opened close.
    virtual void ShowPage(TextView path, const std::vector<Text>& files) = 0;

    /// Loads the live page behind the page that is shown, and shows it in place of that once it is
    /// drawn. While one is loaded, only the newest of those that come meanwhile follows it. A quiet
    /// page is not heard until the author clicks or types in it.
    virtual void ShowLive(const LivePage& page, bool isQuiet) = 0;

    /// Unloads the page, with its sounds and windows.
    virtual void Clear() = 0;

    /// The id of the render process of the page that is shown; 0 when there is none.
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
