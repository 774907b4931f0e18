#include "preview/web_view_page.h"

#include "preview/web_view_pointing.h"
#include "preview/web_view_scheme.h"
#include "preview/web_view_surface.h"
#include "windows/qt_text.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineQuotaRequest>
#include <QWebEngineScript>
#include <QWebEngineUrlRequestInfo>

#include <algorithm>
#include <csignal>

namespace orvane {

namespace {

constexpr QSize windowSize(480, 360);
constexpr std::size_t mostWindows = 10;
constexpr int drawnAtLastMs = 1000;

/// Behind the token, the report of a page that is drawn.
constexpr QLatin1String drawnReport("drawn");

/// Whether the address is one that the author's own programs can be asked to open.
bool IsForOutside(const QUrl& url)
{
    const QString scheme = url.scheme();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https") ||
           scheme == QLatin1String("mailto");
}

} // namespace

bool FolderGuard::LetsThrough(const QUrl& url) const
{
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("data") || scheme == QLatin1String("blob"))
        return true;
    if (scheme == QLatin1String("about"))
        return url.path() == QLatin1String("blank") || url.path() == QLatin1String("srcdoc");
    if (scheme == QLatin1String(liveScheme))
        return HasLive(url);
    return scheme == QLatin1String("file") && url.host().isEmpty() &&
           m_folder.Holds(FromQt(url.toLocalFile()));
}

void FolderGuard::interceptRequest(QWebEngineUrlRequestInfo& request)
{
    if (!LetsThrough(request.requestUrl()))
        request.block(true);
}

void PageContext::CloseWindows()
{
    for (const QPointer<QWidget>& window : std::exchange(Windows, {}))
        delete window.data();
}

PageBoxReply PageContext::Answer(const PageBox& box)
{
    const bool inOther = std::exchange(BoxOpen, true);
    const PageBoxReply reply = Owner.AnswerBox(box);
    BoxOpen = inOther;
    if (inOther)
        return reply;
    for (const QPointer<QWidget>& window : std::vector(Windows))
        if (window && window->isHidden())
            window->close();
    if (AfterBox)
        std::exchange(AfterBox, nullptr)();
    return reply;
}

PageWindow::PageWindow(PageContext& context, QWidget& owner)
    : QWidget(&owner, Qt::Window), m_context(context)
{
    setObjectName("PageWindow");
    // So nothing that must outlive it takes it for an owner.
    setAttribute(Qt::WA_DeleteOnClose);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void PageWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!m_context.BoxOpen);
    if (m_context.BoxOpen)
        hide();
}

PreviewWebPage::PreviewWebPage(QWebEngineProfile& profile, PageContext& context, QWidget& view)
    : QWebEnginePage(&profile, &view),
      m_context(context),
      m_view(view),
      m_watch(
          *this, [&context] { return context.BoxOpen; }, [this] { StopHung(); })
{
    RefusePrivileges();
    // A window that is not on screen draws nothing.
    m_drawnAtLast.setSingleShot(true);
    m_drawnAtLast.setInterval(drawnAtLastMs);
    connect(&m_drawnAtLast, &QTimer::timeout, this, [this] { Drawn(); });
    connect(this, &QWebEnginePage::newWindowRequested, this, &PreviewWebPage::OpenWindow);
    connect(this, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo& load) {
        if (load.status() != QWebEngineLoadingInfo::LoadStartedStatus &&
            m_context.Page.matches(load.url(), QUrl::RemoveFragment | QUrl::RemoveQuery))
            m_context.Owner.PageRead();
    });
}

void PreviewWebPage::RefusePrivileges()
{
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
}

/// Whether the page may go there. The page file is put back first, since a file that is not there
/// counts as outside.
bool PreviewWebPage::MayGoTo(const QUrl& url)
{
    if (m_context.Page.matches(url, QUrl::RemoveFragment | QUrl::RemoveQuery))
        m_context.Owner.PageNeeded();
    return url.scheme() == QLatin1String("javascript") || m_context.Guard.LetsThrough(url);
}

bool PreviewWebPage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame)
{
    const bool mayGo = MayGoTo(url);
    if (!mayGo && isMainFrame)
        OfferOutside(url);
    return mayGo;
}

void PreviewWebPage::OfferOutside(const QUrl& url)
{
    if (!IsForOutside(url) && !url.isLocalFile())
        return;
    // The engine waits for this decision; the author is asked once it has it, and the page may be
    // gone by then.
    QTimer::singleShot(0, &m_context.Guard, [&context = m_context, url] {
        // Encoded, so that no sign in it can make it look like another.
        const QString target =
            url.isLocalFile() ? url.toLocalFile() : url.toString(QUrl::FullyEncoded);
        context.Owner.OutsideWanted(FromQt(target), std::exchange(context.AuthorActed, false));
    });
}

/// A page that hangs stays deaf to whatever the engine asks it, so its process is ended.
void PreviewWebPage::StopHung()
{
    if (const qint64 pid = renderProcessPid(); pid > 0)
        kill(static_cast<pid_t>(pid), SIGKILL);
    m_context.Hung();
}

PageBoxReply PreviewWebPage::Answer(PageBox::Kind shape, const QString& words,
                                    const QString& proposed)
{
    if (m_isLeaving)
        return {.Accepted = true};
    return m_context.Answer({.Shape = shape, .Words = FromQt(words), .Proposed = FromQt(proposed)});
}

void PreviewWebPage::javaScriptAlert(const QUrl&, const QString& words)
{
    Answer(PageBox::Kind::Alert, words);
}

bool PreviewWebPage::javaScriptConfirm(const QUrl&, const QString& words)
{
    return Answer(PageBox::Kind::Confirm, words).Accepted;
}

bool PreviewWebPage::javaScriptPrompt(const QUrl&, const QString& words, const QString& proposed,
                                      QString* entered)
{
    const PageBoxReply reply = Answer(PageBox::Kind::Prompt, words, proposed);
    *entered = ToQt(reply.Entered);
    return reply.Accepted;
}

void PreviewWebPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message,
                                              int, const QString&)
{
    if (!message.startsWith(m_context.Token))
        return;
    const QString report = message.mid(m_context.Token.size());
    if (report == drawnReport) {
        // One that was given up before may still tell of it.
        if (m_drawnAtLast.isActive()) {
            m_drawnAtLast.stop();
            Drawn();
        }
        return;
    }
    if (const auto place = PlaceIn(report)) {
        if (PlacePointed)
            PlacePointed(*place);
        return;
    }
    const bool isStatus = report.startsWith(u'=');
    if (!isStatus)
        m_watch.Start();
    if (StatusWritten)
        StatusWritten(isStatus ? report.mid(1) : QString());
}

void PreviewWebPage::Draw(const QString& script)
{
    // One that loads itself again and again is drawn at last as well.
    if (!m_drawnAtLast.isActive())
        m_drawnAtLast.start();
    // The engine begins a third frame once the first is on its way to the screen.
    runJavaScript(QStringLiteral("%1;{let left = 3; const next = () => left-- ?"
                                 "requestAnimationFrame(next) : console.debug('%2%3'); next()}")
                      .arg(script, m_context.Token, drawnReport),
                  QWebEngineScript::ApplicationWorld);
}

void PreviewWebPage::SetLeaving(bool isLeaving)
{
    m_isLeaving = isLeaving;
    m_drawnAtLast.stop();
}

QStringList PreviewWebPage::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&)
{
    return {};
}

void PreviewWebPage::OpenWindow(QWebEngineNewWindowRequest& request)
{
    if (m_isLeaving || !m_context.Owner.MayOpenWindow())
        return;
    const QUrl url = request.requestedUrl();
    if (!url.isEmpty() && !MayGoTo(url))
        return OfferOutside(url);
    std::erase_if(m_context.Windows, [](const auto& window) { return window.isNull(); });
    if (m_context.Windows.size() >= mostWindows)
        return;

    auto* window = new PageWindow(m_context, m_view);
    const QSize asked = request.requestedGeometry().size();
    window->resize(asked.isEmpty() ? windowSize : asked);
    auto* view = new PageView(m_context, window);
    auto* page = new PreviewWebPage(*profile(), m_context, *view);
    view->setPage(page);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins({});
    layout->addWidget(view);
    connect(page, &QWebEnginePage::titleChanged, window, &QWidget::setWindowTitle);
    connect(page, &QWebEnginePage::windowCloseRequested, window, &QWidget::close);
    connect(page, &QWebEnginePage::renderProcessTerminated, window, &QWidget::close);
    m_context.Windows.emplace_back(window);
    request.openIn(page);
    window->show();
}

} // namespace orvane
