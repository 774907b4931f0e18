#pragma once

#include "preview/page_folder.h"
#include "preview/web_view_owner.h"
#include "preview/web_view_watch.h"

#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>
#include <QWidget>

#include <functional>
#include <vector>

namespace orvane {

/// Lets the engine load what a PageFolder holds, and addresses that carry their content themselves
/// ("data:", "blob:"); blocks all other requests.
class FolderGuard : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    /// Tells of an address with the scheme of live pages whether something is there.
    std::function<bool(const QUrl&)> HasLive = [](const QUrl&) { return false; };

    /// Sets what the page that is shown from now on may read.
    void SetFolder(const PageFolder& folder) { m_folder = folder; }
    /// Whether a page may load this address.
    bool LetsThrough(const QUrl& url) const;
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

private:
    PageFolder m_folder;
};

/// What the shown page and the windows that it opened share.
struct PageContext
{
    WebViewOwner& Owner;
    FolderGuard& Guard;
    QString Token; ///< at the start of the console messages of the preview's own script
    std::function<void()> Hung = {}; ///< called when a page no longer answers and was stopped
    QUrl Page = {};                  ///< the shown page file; empty when there is none
    bool BoxOpen = false;
    std::function<void()> AfterBox = {}; ///< called once the open box is closed
    bool AuthorActed = false;            ///< clicked or typed since the page last led outside
    std::vector<QPointer<QWidget>> Windows = {};

    /// Closes the windows that the page opened.
    void CloseWindows();

    /// Lets the owner show a box and gives the answer. No page and no window is deleted meanwhile;
    /// what is to go waits until the box is closed.
    PageBoxReply Answer(const PageBox& box);
};

/// A window that a page opened. While a box is open, closing only hides it; it is deleted once the
/// box is closed.
class PageWindow : public QWidget
{
public:
    PageWindow(PageContext& context, QWidget& owner);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    PageContext& m_context;
};

/// A page under the rules of the preview: it loads nothing from outside, the owner shows its boxes,
/// and an address outside is offered to the owner. Permissions, full screen, storage and file
/// dialogs are refused without a message.
class PreviewWebPage : public QWebEnginePage
{
public:
    /// Makes a page whose parent is `view`.
    PreviewWebPage(QWebEngineProfile& profile, PageContext& context, QWidget& view);

    /// Called, if set, with what the page wrote into its status line; with an empty text when a
    /// page begins.
    std::function<void(const QString&)> StatusWritten;

    /// Called, if set, when the author points in a page that runs PointingScript().
    std::function<void(const PointedPlace&)> PlacePointed;

    /// Called, if set, when Draw() has come to its end.
    std::function<void()> Drawn;

    /// Lets the page, which is loaded, come on screen; a script runs in it first, apart from its
    /// own scripts. When the page is drawn, or a while later, Drawn() is called once.
    void Draw(const QString& script);

    /// A page that is about to be left shows no boxes, opens no windows and is not asked whether it
    /// may be left.
    void SetLeaving(bool isLeaving);

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl& origin, const QString& words) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& words) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& words, const QString& proposed,
                          QString* entered) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                  int line, const QString& source) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList& old,
                            const QStringList& types) override;

private:
    void RefusePrivileges();
    void OpenWindow(QWebEngineNewWindowRequest& request);
    bool MayGoTo(const QUrl& url);
    void OfferOutside(const QUrl& url);
    void StopHung();
    PageBoxReply Answer(PageBox::Kind shape, const QString& words, const QString& proposed = {});

    PageContext& m_context;
    QWidget& m_view;
    AnswerWatch m_watch;
    QTimer m_drawnAtLast;
    bool m_isLeaving = false;
};

} // namespace orvane
