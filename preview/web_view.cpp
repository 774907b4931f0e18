#include "preview/web_view.h"

#include "preview/engine_sandbox.h"
#include "preview/web_view_live.h"
#include "preview/web_view_surface.h"
#include "windows/qt_text.h"

#include <QStackedLayout>
#include <QTimer>
#include <QUuid>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QtWebEngineQuick>

#include <optional>

namespace orvane {

namespace {

constexpr const char* flagsVariable = "QTWEBENGINE_CHROMIUM_FLAGS";

/// Cuts the engine off from every network, whatever a page finds to call with: a proxy that nobody
/// runs, no traffic past it, no name that is looked up, and no group joined to make up names.
constexpr const char* engineFlags =
    " --proxy-server=socks5://127.0.0.1:9 --proxy-bypass-list=<-loopback>"
    " --force-webrtc-ip-handling-policy=disable_non_proxied_udp"
    " --disable-features=WebRtcHideLocalIpsWithMdns"
    " --host-resolver-rules=\"MAP * ~NOTFOUND\""
    // For the pages that live ones leave behind.
    " --js-flags=--expose-gc-as=orvaneCollect";

/// The preview's own script, first in every document. It gives window.status back its voice, which
/// the engine keeps and shows nowhere; the property stays configurable, since pages declare
/// functions of that name. It reports "begin" for a new page and "=" and the words for a status.
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
    if (window === window.top)
        report("%1begin");
})();)js")
        .arg(token);
}

/// The view of the module: one engine profile, and in it live pages, or a fresh page for each page
/// file, so that nothing of a page survives it. A spare page stands ready while none is shown: the
/// engine starts its process meanwhile, and the next preview comes at once.
class EngineView : public WebView
{
public:
    EngineView(WebViewOwner& owner, QWidget* parent)
        : WebView(parent),
          m_context{.Owner = owner,
                    .Guard = m_guard,
                    .Token = QUuid::createUuid().toString(),
                    .Hung = [this] { EndPage(PageEnd::Hung); }},
          m_view(m_context, this)
    {
        SetUpProfile();
        m_stack->addWidget(&m_view);
        setFocusProxy(&m_view);
        MakePage();
    }

    ~EngineView() override
    {
        m_context.CloseWindows();
        delete m_live;
        delete m_page;
    }

    void ShowPage(TextView path, const std::vector<Text>& files) override
    {
        Turn([this, path = Text(path), files] {
            if (!m_isSpare)
                MakePage();
            m_isSpare = false;
            Show(m_view);
            if (m_live != nullptr)
                m_live->Clear();
            m_guard.SetFolder(PageFolder(path, files));
            m_context.Page = QUrl::fromLocalFile(ToQt(path));
            m_page->load(m_context.Page);
        });
    }

    void ShowLive(const LivePage& page, bool isQuiet) override
    {
        Turn([this, page, isQuiet] {
            if (!m_isSpare)
                MakePage();
            if (m_live == nullptr) {
                m_live = new LiveView(m_profile, m_guard, m_context.Owner, m_context.Token);
                m_stack->addWidget(m_live);
            }
            Show(*m_live);
            m_live->Show(page, isQuiet);
        });
    }

    void Clear() override
    {
        Turn([this] {
            if (!m_isSpare)
                MakePage();
            if (m_live != nullptr)
                m_live->Clear();
        });
    }

    std::int64_t RendererPid() const override { return ShownPage().renderProcessPid(); }

    void Evaluate(const QString& script, std::function<void(const QVariant&)> result) override
    {
        ShownPage().runJavaScript(script, result);
    }

private:
    void SetUpProfile();
    void SetFonts(QWebEngineSettings& settings);
    void MakePage();
    void EndPage(PageEnd end);
    void Turn(std::function<void()> toNext);
    void Show(QWidget& part);
    QWebEnginePage& ShownPage() const;

    FolderGuard m_guard;
    QWebEngineProfile m_profile; ///< without a name: it leaves nothing on the disk
    PageContext m_context;
    PageView m_view;
    QStackedLayout* m_stack = new QStackedLayout(this);
    PreviewWebPage* m_page = nullptr;
    LiveView* m_live = nullptr; ///< made for the first live page
    bool m_isSpare = false;     ///< nothing was shown in the page yet
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
    SetFonts(settings);

    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(PreviewScript(m_context.Token));
    m_profile.scripts()->insert(script);
}

/// The families of the browser that the engine comes from. The toolkit's own make words look unlike
/// those in a browser of the same machine wherever a page names no font, or one that is missing.
void EngineView::SetFonts(QWebEngineSettings& settings)
{
    constexpr std::pair<QWebEngineSettings::FontFamily, const char*> families[] = {
        {QWebEngineSettings::StandardFont, "Times New Roman"},
        {QWebEngineSettings::SerifFont, "Times New Roman"},
        {QWebEngineSettings::SansSerifFont, "Arial"},
        {QWebEngineSettings::FixedFont, "Monospace"},
        {QWebEngineSettings::CursiveFont, "Comic Sans MS"},
        {QWebEngineSettings::FantasyFont, "Impact"}};
    for (const auto& [family, name] : families)
        settings.setFontFamily(family, QLatin1String(name));
}

void EngineView::MakePage()
{
    m_context.CloseWindows();
    m_context.Page.clear();
    m_context.AuthorActed = false;
    m_isSpare = true;
    PreviewWebPage* former = m_page;
    m_page = new PreviewWebPage(m_profile, m_context, m_view);
    m_page->StatusWritten = [this](const QString& status) {
        m_context.Owner.StatusWritten(FromQt(status));
    };
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status, int) {
                if (status != QWebEnginePage::NormalTerminationStatus)
                    EndPage(PageEnd::Crashed);
            });
    m_view.setPage(m_page);
    // The engine makes a page's process when the page is first asked for something.
    m_page->runJavaScript(QString());
    delete former;
}

void EngineView::EndPage(PageEnd end)
{
    // The page itself is still on the stack.
    QTimer::singleShot(0, this, [this, end, ended = m_page] {
        if (m_page != ended || m_isSpare)
            return;
        Clear();
        m_context.Owner.PageEnded(end);
    });
}

void EngineView::Show(QWidget& part)
{
    m_stack->setCurrentWidget(&part);
    setFocusProxy(&part);
}

QWebEnginePage& EngineView::ShownPage() const
{
    if (m_live != nullptr && m_stack->currentWidget() == m_live)
        return m_live->Page();
    return *m_page;
}

/// Goes on to the next page, or none, but not while a box of this one waits for its answer.
void EngineView::Turn(std::function<void()> toNext)
{
    m_context.AfterBox = nullptr;
    if (m_context.BoxOpen)
        m_context.AfterBox = [this, toNext] { QTimer::singleShot(0, this, toNext); };
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
    using orvane::engineFlags;
    using orvane::flagsVariable;
    // The engine reads its flags once, before its first view.
    static const bool isOffline = qputenv(flagsVariable, qgetenv(flagsVariable) + engineFlags);
    if (!isOffline) {
        refusal = u"The built-in preview could not be cut off from the network.";
        return nullptr;
    }
    orvane::RegisterLiveScheme();
    // Without this, a view in a module loaded after the application's start crashes.
    QtWebEngineQuick::initialize();
    return new orvane::EngineView(owner, parent);
}
