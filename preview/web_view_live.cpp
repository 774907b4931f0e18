#include "preview/web_view_live.h"

#include "preview/web_view_pointing.h"
#include "windows/qt_text.h"

#include <QStackedLayout>
#include <QWebEngineLoadingInfo>
#include <QWebEngineScript>
#include <QWebEngineSettings>

#include <algorithm>
#include <utility>

#include <malloc.h>

namespace orvane {

namespace {

constexpr double leastZoom = 0.25; ///< of the engine

/// Longer than a page that hangs is waited for.
constexpr int loadAtLastMs = 12000;

/// As many pages as one process shows: something of each stays behind in it.
constexpr int mostPages = 40;

/// Without another page; the author reads or does something else.
constexpr int restMs = 2000;

} // namespace

LiveView::LiveView(QWebEngineProfile& profile, FolderGuard& guard, WebViewOwner& owner,
                   const QString& token)
    : m_context{.Owner = owner,
                .Guard = guard,
                .Token = token,
                .Hung = [this] { m_isHung = true; }},
      m_profile(profile),
      m_stack(new QStackedLayout(this))
{
    m_profile.installUrlSchemeHandler(liveScheme, &m_files);
    guard.HasLive = [this](const QUrl& url) { return m_files.Has(url); };
    m_stack->setStackingMode(QStackedLayout::StackAll);
    m_loadAtLast.setSingleShot(true);
    m_loadAtLast.setInterval(loadAtLastMs);
    connect(&m_loadAtLast, &QTimer::timeout, this, &LiveView::EndLateLoad);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    // Many pages leave a third of this program's memory free, but not given back.
    connect(&m_rest, &QTimer::timeout, this, [] { ::malloc_trim(0); });
    for (Sheet& sheet : m_sheets)
        MakeSheet(sheet);
    Front().View->SetSeen(true);
    m_stack->setCurrentWidget(Front().View);
    setFocusProxy(Front().View);
}

LiveView::~LiveView()
{
    m_context.CloseWindows();
    m_profile.removeUrlSchemeHandler(&m_files);
    m_context.Guard.HasLive = [](const QUrl&) { return false; };
    for (Sheet& sheet : m_sheets)
        delete sheet.Page;
}

void LiveView::MakeSheet(Sheet& sheet)
{
    sheet.View = new PageView(m_context, this);
    sheet.View->SetSeen(false);
    sheet.View->AuthorActed = [&sheet] { sheet.Page->setAudioMuted(false); };
    m_stack->addWidget(sheet.View);
    MakePage(sheet);
    Empty(sheet);
}

/// Gives the sheet a page, with a process of its own.
void LiveView::MakePage(Sheet& sheet)
{
    const PreviewWebPage* former = sheet.Page;
    sheet.Shown = 0;
    sheet.Page = new PreviewWebPage(m_profile, m_context, *sheet.View);
    sheet.View->setPage(sheet.Page);
    delete former;
    sheet.Page->StatusWritten = [this, &sheet](const QString& status) {
        sheet.Status = status;
        if (&sheet == &Front() && sheet.Number != 0)
            m_context.Owner.StatusWritten(FromQt(status));
    };
    sheet.Page->PlacePointed = [this, &sheet](const PointedPlace& place) {
        if (&sheet == &Front() && sheet.Number != 0)
            m_context.Owner.PlacePointed(place);
    };
    sheet.Page->Drawn = [this, &sheet] {
        if (m_isLoading && &sheet == &Back())
            Exchange();
    };
    connect(sheet.Page, &QWebEnginePage::loadingChanged, this,
            [this, &sheet](const QWebEngineLoadingInfo& load) {
                if (load.status() != QWebEngineLoadingInfo::LoadStartedStatus)
                    Loaded(sheet, load.url());
            });
    connect(sheet.Page, &QWebEnginePage::renderProcessTerminated, this,
            [this, &sheet](QWebEnginePage::RenderProcessTerminationStatus status, int) {
                if (status != QWebEnginePage::NormalTerminationStatus)
                    // The page itself is still on the stack.
                    QTimer::singleShot(0, this, [this, &sheet] { EndOf(sheet); });
            });
}

void LiveView::Show(const LivePage& page, bool isQuiet)
{
    m_next = {page, isQuiet};
    GoOn();
}

/// Loads the page that is wanted next, if there is one.
void LiveView::GoOn()
{
    if (!m_next || m_isLoading)
        return;
    if (!m_loadAtLast.isActive())
        m_loadAtLast.start();
    // The engine reports the end of the load that it breaks off for another as that of the other.
    if (Back().IsEmptying)
        return;
    if (WaitsForBox([this] { GoOn(); }))
        return;
    const Wanted wanted = *std::move(m_next);
    m_next.reset();
    Load(wanted);
}

/// Whether a page shows a box, which has to be answered before any page goes; `action` follows
/// then.
bool LiveView::WaitsForBox(const std::function<void()>& action)
{
    if (m_context.BoxOpen)
        m_context.AfterBox = [this, action] { QTimer::singleShot(0, this, action); };
    return m_context.BoxOpen;
}

void LiveView::Load(const Wanted& wanted)
{
    m_isLoading = true;
    m_loadAtLast.start();
    m_context.CloseWindows();
    m_context.AuthorActed = false;
    Sheet& sheet = Back();
    sheet.Number = ++m_number;
    sheet.Status.clear();
    const QUrl url = m_files.Add(m_number, wanted.Page, Front().Number);
    m_loaded = {{.Mark = wanted.Page.Mark,
                 .ScrollsToMark = wanted.Page.ScrollsToMark,
                 .View = wanted.Page.View,
                 .TakesPointing = wanted.Page.TakesPointing},
                wanted.IsQuiet};
    sheet.Page->SetLeaving(false);
    sheet.Page->setAudioMuted(wanted.IsQuiet);
    sheet.Page->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled,
                                         wanted.Page.View.RunsScript);
    FitWidth();
    sheet.Page->load(url);
}

/// A load of the sheet has come to its end.
void LiveView::Loaded(Sheet& sheet, const QUrl& url)
{
    if (sheet.IsEmptying) {
        sheet.IsEmptying = url != LiveScheme::EmptyPage();
        // By itself the engine waits for many pages before it gives back what they held.
        sheet.Page->runJavaScript(QStringLiteral("orvaneCollect()"),
                                  QWebEngineScript::ApplicationWorld);
        return GoOn();
    }
    if (&sheet != &Back() || !m_isLoading)
        return;
    const QPointF scroll = Front().Page->scrollPosition() / Front().Page->zoomFactor();
    QString script = m_loaded.Page.ScrollsToMark
                         ? ScrollingScript(m_loaded.Page.Mark)
                         : QStringLiteral("scrollTo(%1, %2)").arg(scroll.x()).arg(scroll.y());
    if (m_loaded.Page.TakesPointing)
        script += QLatin1Char(';') + PointingScript(m_context.Token);
    sheet.Page->Draw(script);
}

void LiveView::Exchange()
{
    if (WaitsForBox([this] { Exchange(); }))
        return;
    Sheet& former = Front();
    m_front = 1 - m_front;
    former.View->SetSeen(false);
    Front().View->SetSeen(true);
    m_stack->setCurrentWidget(Front().View);
    setFocusProxy(Front().View);
    if (++former.Shown == mostPages)
        MakePage(former);
    Empty(former);
    m_isLoading = false;
    m_loadAtLast.stop();
    m_rest.start();
    m_context.Owner.StatusWritten(FromQt(Front().Status));
    m_context.Owner.LivePageShown();
    GoOn();
}

void LiveView::Empty(Sheet& sheet)
{
    sheet.Number = 0;
    sheet.IsEmptying = true;
    sheet.Page->SetLeaving(true);
    sheet.Page->setAudioMuted(true);
    sheet.Page->load(LiveScheme::EmptyPage());
}

void LiveView::Clear()
{
    m_next.reset();
    m_isLoading = false;
    m_loadAtLast.stop();
    if (WaitsForBox([this] { Clear(); }))
        return;
    m_context.CloseWindows();
    for (Sheet& sheet : m_sheets)
        if (sheet.Number != 0)
            Empty(sheet);
}

/// What is loaded next gets a new process.
void LiveView::EndOf(Sheet& sheet)
{
    const bool isHung = std::exchange(m_isHung, false);
    sheet.IsEmptying = false;
    if (sheet.Number == 0)
        return GoOn();
    if (&sheet == &Back())
        m_isLoading = false;
    m_context.Owner.PageEnded(isHung ? PageEnd::Hung : PageEnd::Crashed);
    GoOn();
}

/// A load whose end is never reported counts as that of a page that no longer runs.
void LiveView::EndLateLoad()
{
    if (m_context.BoxOpen)
        return m_loadAtLast.start();
    Back().IsEmptying = m_isLoading = false;
    m_context.Owner.PageEnded(PageEnd::Crashed);
    GoOn();
}

/// Gives the page a window of the width that the author looks for: it stands in the middle of the
/// pane, or is made smaller to have room there.
void LiveView::FitWidth()
{
    const int wanted = m_loaded.Page.View.Width;
    const int margin = wanted == 0 ? 0 : std::max(0, (width() - wanted) / 2);
    setContentsMargins(margin, 0, margin, 0);
    double zoom = Front().Page->zoomFactor();
    if (wanted != 0)
        zoom = std::clamp(static_cast<double>(width()) / wanted, leastZoom, 1.0);
    else if (m_fitted != 0)
        zoom = 1;
    m_fitted = wanted;
    for (const Sheet& sheet : m_sheets)
        sheet.Page->setZoomFactor(zoom);
}

void LiveView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    FitWidth();
}

} // namespace orvane
