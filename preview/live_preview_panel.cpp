#include "preview/live_preview_panel.h"

#include "core/file_names.h"
#include "preview/page_pane_panel.h"
#include "services/page_requests.h"
#include "services/recent_files.h"
#include "windows/controls.h"
#include "windows/qt_text.h"
#include "windows/wizard_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

/// The wizard is on screen, and its author reads.
constexpr int beginAfterMs = 400;

/// Of a change that waits; what follows it until then comes with it.
constexpr int pictureAfterMs = 12;

constexpr TextView emptyPage = u"an empty page";
constexpr TextView browse = u"Browse...";

struct ViewRow
{
    const char* Words;
    int Width;
};
constexpr ViewRow viewRows[] = {
    {"As wide as the preview", 0}, {"Desktop width", 1280}, {"Phone width", 390}};

QCheckBox* AddTick(ControlName name, TextView caption, QHBoxLayout& row)
{
    auto* tick = new QCheckBox(ToQt(caption));
    tick->setObjectName(ToQt(name));
    row.addWidget(tick);
    return tick;
}

} // namespace

LivePreviewPanel::LivePreviewPanel(Workbench& bench, QWidget* pane,
                                   std::function<Deliverable()> effect)
    : m_bench(bench), m_pane(pane), m_effect(std::move(effect)), m_rows(new QVBoxLayout(this))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(pictureAfterMs);
    connect(&m_soon, &QTimer::timeout, this, [this] { ShowPicture(); });
}

/// Not in the constructor: the window comes up without waiting for it.
void LivePreviewPanel::Build()
{
    if (m_page != nullptr)
        return;
    cboPreviewIn = new QComboBox;
    cboPreviewIn->setObjectName(QStringLiteral("cboPreviewIn"));
    cboPreviewIn->setAccessibleName(QStringLiteral("Show the effect in"));
    cboPreviewIn->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(cboPreviewIn, &QComboBox::textActivated, this, &LivePreviewPanel::ChoosePage);
    lblPreviewCheck = new QLabel;
    lblPreviewCheck->setObjectName(QStringLiteral("lblPreviewCheck"));
    lblPreviewCheck->setTextFormat(Qt::PlainText);
    lblPreviewCheck->setWordWrap(true);

    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(QStringLiteral("In:")));
    top->addWidget(cboPreviewIn, 1);
    m_rows->addLayout(top);
    m_page = new PagePanePanel(m_bench, m_pane);
    QSizePolicy policy = m_page->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_page->setSizePolicy(policy);
    m_page->hide();
    m_rows->addWidget(m_page, 1);
    m_rows->addWidget(lblPreviewCheck);
    BuildViews();
    ListPages();
    SetReadingOrder(*window());
}

void LivePreviewPanel::BuildViews()
{
    cboPreviewView = new QComboBox;
    cboPreviewView->setObjectName(QStringLiteral("cboPreviewView"));
    cboPreviewView->setAccessibleName(QStringLiteral("Width of the page"));
    for (const ViewRow& row : viewRows)
        cboPreviewView->addItem(QLatin1String(row.Words));
    QPushButton* again =
        MakeButton("cmdRunAgain", u"Run again", u"Shows the page from its beginning");
    auto* views = new QHBoxLayout;
    views->addWidget(cboPreviewView, 1);
    views->addWidget(again);
    auto* ticks = new QHBoxLayout;
    chkReducedMotion = AddTick("chkReducedMotion", u"Reduced motion", *ticks);
    chkRunsScript = AddTick("chkRunsScript", u"Script", *ticks);
    chkRunsScript->setChecked(true);
    ticks->addStretch();
    m_rows->addLayout(views);
    m_rows->addLayout(ticks);
    connect(again, &QPushButton::clicked, this, [this] { ShowPicture(Again::Yes); });
    connect(cboPreviewView, &QComboBox::textActivated, this, [this] { ShowPicture(); });
    for (QCheckBox* tick : {chkReducedMotion, chkRunsScript})
        connect(tick, &QCheckBox::toggled, this, [this] { ShowPicture(); });
}

void LivePreviewPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    QTimer::singleShot(0, this, &LivePreviewPanel::Build);
    QTimer::singleShot(m_page != nullptr ? 0 : beginAfterMs, this, &LivePreviewPanel::Begin);
}

void LivePreviewPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    m_soon.stop();
    m_shown.reset();
    if (m_page != nullptr)
        m_page->hide();
}

void LivePreviewPanel::Begin()
{
    if (!isVisible())
        return;
    Build();
    ShowPicture();
    m_page->show();
    SetReadingOrder(*window());
}

void LivePreviewPanel::Update()
{
    // A running timer goes on, so that an author who types without a stop sees it too.
    if (m_page != nullptr && m_page->isVisible() && !m_soon.isActive())
        m_soon.start();
}

void LivePreviewPanel::ShowPicture(Again again)
{
    m_host.Read(m_bench.Files);
    const Deliverable made = m_effect();
    const auto* complaint = std::get_if<Complaint>(&made);
    if (complaint == nullptr)
        m_good = PictureOf(std::get<EffectPayload>(made), m_host.Page(), m_bench.Files,
                           m_bench.Core.ProgramFolder);
    Text line = complaint != nullptr ? complaint->Words : m_good->Line;
    if (m_host.IsGone())
        line = Join({u"The page is not there any more: ", m_host.Page()->Path, u"  ", line});
    lblPreviewCheck->setText(ToQtLines(line));
    if (m_good)
        Show(m_good->Page, again);
    else if (m_host.Page())
        Show(PictureOf(m_host.Page()), again);
}

void LivePreviewPanel::Show(LivePage page, Again again)
{
    page.View = View();
    if (again == Again::No && m_shown == page)
        return;
    m_shown = page;
    page.ScrollsToMark = m_isHostNew && m_good.has_value();
    m_isHostNew = m_isHostNew && !m_good;
    m_page->Show(page);
}

PaneView LivePreviewPanel::View() const
{
    return {.Width = viewRows[cboPreviewView->currentIndex()].Width,
            .HasReducedMotion = chkReducedMotion->isChecked(),
            .RunsScript = chkRunsScript->isChecked()};
}

void LivePreviewPanel::ListPages()
{
    cboPreviewIn->clear();
    cboPreviewIn->addItem(ToQt(emptyPage));
    const Text chosen = m_bench.Settings.Get(settingKeys::previewPage);
    std::vector<Text> pages = RecentFiles(m_bench.Settings, m_bench.Files, recentPages);
    if (!chosen.empty() && std::ranges::find(pages, chosen) == pages.end() &&
        m_bench.Files.FileExists(chosen))
        pages.insert(pages.begin(), chosen);
    for (const Text& page : pages) {
        cboPreviewIn->addItem(ToQt(GetFileName(page)), ToQt(page));
        cboPreviewIn->setItemData(cboPreviewIn->count() - 1, ToQt(page), Qt::ToolTipRole);
        if (page == chosen)
            cboPreviewIn->setCurrentIndex(cboPreviewIn->count() - 1);
    }
    cboPreviewIn->addItem(ToQt(browse));
    GoTo(FromQt(cboPreviewIn->currentData().toString()));
}

void LivePreviewPanel::ChoosePage()
{
    const int index = cboPreviewIn->currentIndex();
    Text path = FromQt(cboPreviewIn->itemData(index).toString());
    if (index == cboPreviewIn->count() - 1) {
        const auto picked = m_bench.Dialogs.OpenFile(ExistingPageRequest());
        if (!picked)
            return ListPages();
        path = *picked;
    }
    m_bench.Settings.Put(settingKeys::previewPage, path);
    ListPages();
    ShowPicture();
}

/// Shows the effect in the page from now on; in an empty one for an empty path.
void LivePreviewPanel::GoTo(const Text& path)
{
    if (path == (m_host.Page() ? m_host.Page()->Path : Text()))
        return;
    m_host.GoTo(path);
    m_good.reset();
    m_isHostNew = !path.empty();
}

void AddLivePreview(WizardForm& wizard, Workbench& bench, QWidget* pane)
{
    auto* panel = new LivePreviewPanel(bench, pane, [&wizard] { return wizard.WouldDeliver(); });
    QObject::connect(&wizard, &WizardForm::FieldsChanged, panel, &LivePreviewPanel::Update);
    wizard.AddSide(panel);
}

} // namespace orvane
