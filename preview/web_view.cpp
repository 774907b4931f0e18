#include "preview/web_view.h"

#include "preview/engine_sandbox.h"
#include "preview/web_view_page.h"
#include "windows/qt_text.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QUuid>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QtWebEngineQuick>

#include <csignal>
#include <optional>

namespace orvane {

namespace {

constexpr int pingMs = 1000;
constexpr qint64 patienceMs = 8000;

/// The preview's own script, first in every document. It gives window.status back its voice, which
/// the engine keeps and shows nowhere; the property stays configurable, since pages declare
/// functions of that name. It takes away what calls servers behind the request interceptor's back.
/// It reports "begin" for a new page and "=" and the words for a status.
QString PreviewScript(const QString& token)
{
    return QStringLiteral(R"js((function () {
    const report = console.debug.bind(console);
    let shown = "";
    const write = function (value) {
        shown = `${value}`;
        report("%1=" + shown.slice(0, 4000));
    };
    Object.defineProperty(window, "status",
                          {configurable: true, enumerable: true, get: () => shown, set: write});
    for (const caller of ["RTCPeerConnection", "webkitRTCPeerConnection", "WebTransport"])
        delete window[caller];
    if (window === window.top)
        report("%1begin");
})();)js")
        .arg(token);
}

/// Whether the shown page still answers, asked once a second while no box holds it up.
class AnswerWatch : public QObject
{
public:
    AnswerWatch(PageRoom& room, std::function<void()> hung) : m_room(room), m_hung(std::move(hung))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { Tick(); });
    }

    /// Watches this page from its first sign of life on.
    void Watch(QWebEnginePage& page)
    {
        m_page = &page;
        m_asked = false;
        m_timer.start(pingMs);
    }

    void Stop() { m_timer.stop(); }

private:
    void Tick()
    {
        if (m_room.BoxOpen) {
            m_since.start();
        } else if (!m_asked) {
            m_asked = true;
            m_since.start();
            m_page->runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                                  [this, alive = QPointer(this)](const QVariant&) {
                                      if (alive)
                                          m_asked = false;
                                  });
        } else if (m_since.elapsed() >= patienceMs) {
            Stop();
            m_hung();
        }
    }

    PageRoom& m_room;
    std::function<void()> m_hung;
    QPointer<QWebEnginePage> m_page;
    QTimer m_timer;
    QElapsedTimer m_since;
    bool m_asked = false;
};

/// The view of the module: one engine profile, and a fresh page for each page file, so that nothing
/// of a page survives it. A spare page stands ready while none is shown: the engine starts its
/// process meanwhile, and the next preview comes at once.
class EngineView : public WebView
{
public:
    EngineView(WebViewOwner& owner, QWidget* parent)
        : WebView(parent),
          m_room{.Owner = owner, .Guard = m_guard, .Token = QUuid::createUuid().toString()},
          m_view(m_room, this),
          m_watch(m_room, [this] { StopHungPage(); })
    {
        SetUpProfile();
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(&m_view);
        setFocusProxy(&m_view);
        MakePage();
    }

    ~EngineView() override
    {
        m_room.CloseWindows();
        delete m_page;
    }

    void ShowPage(TextView path) override
    {
        Turn([this, path = Text(path)] {
            if (!m_isSpare)
                MakePage();
            m_isSpare = false;
            m_guard.SetFolder(PageFolder(path));
            m_room.Page = QUrl::fromLocalFile(ToQt(path));
            m_page->load(m_room.Page);
        });
    }

    void Clear() override
    {
        Turn([this] {
            if (!m_isSpare)
                MakePage();
        });
    }

    std::int64_t RendererPid() const override { return m_page->renderProcessPid(); }

    void Evaluate(const QString& script, std::function<void(const QVariant&)> result) override
    {
        m_page->runJavaScript(script, result);
    }

private:
    void SetUpProfile();
    void MakePage();
    void StopHungPage();
    void EndPage(PageEnd end);
    void Turn(std::function<void()> toNext);

    FolderGuard m_guard;
    QWebEngineProfile m_profile; ///< without a name: it leaves nothing on the disk
    PageRoom m_room;
    PageView m_view;
    AnswerWatch m_watch;
    PreviewWebPage* m_page = nullptr;
    bool m_isSpare = false; ///< nothing was shown in the page yet
    bool m_stoppedHung = false;
};

void EngineView::SetUpProfile()
{
    m_profile.setUrlRequestInterceptor(&m_guard);
    m_profile.setSpellCheckEnabled(false);
    connect(&m_profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest* download) { download->cancel(); });

    QWebEngineSettings& settings = *m_profile.settings();
    settings.setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, false);
    settings.setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, true);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
    settings.setAttribute(QWebEngineSettings::FullScreenSupportEnabled, false);
    settings.setAttribute(QWebEngineSettings::PluginsEnabled, false);
    settings.setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
    settings.setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    settings.setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
    // Not to follow them: otherwise the page is not asked, and cannot offer a mail address.
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::AllowAllUnknownUrlSchemes);

    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(PreviewScript(m_room.Token));
    m_profile.scripts()->insert(script);
}

void EngineView::MakePage()
{
    m_watch.Stop();
    m_room.CloseWindows();
    m_room.Page.clear();
    m_room.AuthorActed = false;
    m_isSpare = true;
    m_stoppedHung = false;
    PreviewWebPage* former = m_page;
    m_page = new PreviewWebPage(m_profile, m_room, m_view);
    m_page->Reported = [this](const QString& report) {
        const bool isStatus = report.startsWith(u'=');
        m_room.Owner.StatusWritten(isStatus ? FromQt(report.mid(1)) : Text());
        if (!isStatus)
            m_watch.Watch(*m_page);
    };
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status, int) {
                if (status != QWebEnginePage::NormalTerminationStatus)
                    EndPage(m_stoppedHung ? PageEnd::Hung : PageEnd::Crashed);
            });
    m_view.setPage(m_page);
    delete former;
}

void EngineView::StopHungPage()
{
    m_stoppedHung = true;
    const std::int64_t pid = RendererPid();
    if (pid <= 0 || kill(static_cast<pid_t>(pid), SIGKILL) != 0)
        EndPage(PageEnd::Hung);
}

void EngineView::EndPage(PageEnd end)
{
    // The page itself is still on the stack.
    QTimer::singleShot(0, this, [this, end, ended = m_page] {
        if (m_page != ended)
            return;
        Clear();
        m_room.Owner.PageEnded(end);
    });
}

/// Goes on to the next page, or none, but not while a box of this one waits for its answer.
void EngineView::Turn(std::function<void()> toNext)
{
    m_room.AfterBox = nullptr;
    if (m_room.BoxOpen)
        m_room.AfterBox = [this, toNext] { QTimer::singleShot(0, this, toNext); };
    else
        toNext();
}

} // namespace

} // namespace orvane

extern "C" Q_DECL_EXPORT orvane::WebView* OrvaneMakeWebView(orvane::WebViewOwner& owner,
                                                            QWidget* parent, orvane::Text& refusal)
{
    if (const auto reason = orvane::WhyEngineCannotStart(orvane::FindSandboxFacts())) {
        refusal = *reason;
        return nullptr;
    }
    // Without this, a view in a module loaded behind the application's start crashes.
    QtWebEngineQuick::initialize();
    return new orvane::EngineView(owner, parent);
}
