#pragma once

#include "preview/page_folder.h"
#include "preview/web_view.h"
#include "preview/web_view_watch.h"

#include <QPointer>
#include <QUrl>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <functional>
#include <vector>

namespace orvane {

/// Lets the engine read files below one folder, and addresses that carry their content themselves.
class FolderGuard : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void SetFolder(const PageFolder& folder) { m_folder = folder; }
    bool LetsThrough(const QUrl& url) const;
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

private:
    PageFolder m_folder;
};

/// What a shown page and the windows that it opened have in common.
struct PageRoom
{
    WebViewOwner& Owner;
    FolderGuard& Guard;
    QString Token;                   ///< begins the console messages of the preview's own script
    std::function<void()> Hung = {}; ///< called when a page no longer answers and was stopped
    QUrl Page = {};                  ///< the shown page file; empty when there is none
    bool BoxOpen = false;
    std::function<void()> AfterBox = {}; ///< run once the open box has closed
    bool AuthorActed = false;            ///< clicked or typed since the page last led outside
    std::vector<QPointer<QWidget>> Windows = {};

    /// Closes the windows that the page opened.
    void CloseWindows();

    /// Lets the owner show a box. No page and no window of one goes away meanwhile.
    PageBoxReply Answer(const PageBox& box);
};

/// A window that a page opened. It closes itself whenever the page wants, but not under a box of
/// the page that shows in it: it is hidden then and goes once the box has its answer.
class PageWindow : public QWidget
{
public:
    PageWindow(PageRoom& room, QWidget& owner);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    PageRoom& m_room;
};

/// A page under the preview's rules: nothing from outside, boxes through the owner, all that would
/// reach beyond the page refused without a word.
class PreviewWebPage : public QWebEnginePage
{
public:
    /// A page inside `view`, which is the page's parent.
    PreviewWebPage(QWebEngineProfile& profile, PageRoom& room, QWidget& view);

    /// Called with what the page wrote into its status line, empty when the page begins; unless
    /// set, it is dropped.
    std::function<void(const QString&)> StatusWritten;

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

    PageRoom& m_room;
    QWidget& m_view;
    AnswerWatch m_watch;
};

/// A browser view without a menu of its own, which notices when the author acts in it.
class PageView : public QWebEngineView
{
public:
    PageView(PageRoom& room, QWidget* parent);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PageRoom& m_room;
};

} // namespace orvane
