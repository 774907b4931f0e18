#include "delivery/preview_form.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "delivery/editor_panel.h"
#include "delivery/finish_panel.h"
#include "delivery/insert_panel.h"
#include "delivery/method_panel.h"
#include "delivery/preview_panel.h"
#include "insertion/auto_insert.h"
#include "services/made_files.h"
#include "services/page_requests.h"
#include "services/recent_files.h"
#include "windows/qt_text.h"
#include "windows/wait_cursor.h"

#include <QLayout>
#include <QPushButton>
#include <QTimer>

#include <tuple>
#include <utility>

namespace orvane {

namespace {

constexpr int publishPanel = 7;

/// The one note of the preview's page on how the effect runs.
Text WordsOnBrowsers(EffectKind kind)
{
    const CatalogueRow& row = RowOf(kind);
    Text words(row.InTodaysBrowsers);
    if (row.ShowsInStatusLine)
        words += u"  Without it, the framed line below the preview shows the effect here.";
    return words;
}

} // namespace

PreviewForm::PreviewForm(Workbench& bench, const EffectPayload& effect, QWidget* pane,
                         PreviewWindows windows, QWidget* parent)
    : WizardFrame("Preview", bench, parent),
      m_payload(Finish(effect)),
      m_pane(pane),
      m_windows(std::move(windows))
{
    setWindowTitle(QStringLiteral("Preview Wizard"));
    const bool isWanted = bench.Settings.Get(settingKeys::runsToday) == u"1";
    m_payload.WantsPageScript = isWanted && !RunsByItself(effect);
    m_preview = new PreviewPanel(m_pane, {.Sentence = WordsOnBrowsers(effect.Kind),
                                          .WantsPageScript = isWanted,
                                          .OffersScript = !effect.IsBlock});
    connect(m_preview, &PreviewPanel::PageScriptChosen, this, &PreviewForm::ChoosePageScript);
    connect(m_preview, &PreviewPanel::PreviewWanted, this, &PreviewForm::Preview);
    connect(m_preview, &PreviewPanel::PutIntoWanted, this, &PreviewForm::PutIntoPage);
    AddPanelOf(0, m_preview);
    AddButtons(Buttons::Paged, "cmdHelp");
    setMinimumSize(640, 440);
    // The pages that are built later have room in so many lines.
    resize(minimumWidth(), fontMetrics().lineSpacing() * 39);
    ChangePage(m_step);
}

PreviewForm::~PreviewForm()
{
    m_bench.Pane.Loaded = nullptr;
    m_bench.Pane.Clear();
    // It is gone already when the embedded browser was the last to show it.
    std::ignore = m_bench.Files.Remove(PreviewPagePath(m_bench.Core));
    RemoveSecretFiles(m_bench.Files, m_bench.Core.ProgramFolder, m_payload.Effect);
    m_bench.Core.Payload.HEADHTML.clear();
    m_bench.Core.Payload.BODYHTML.clear();
}

void PreviewForm::AddPanelOf(int index, QWidget* content)
{
    content->layout()->setContentsMargins({});
    PageBuilder(AddPanel(MemberName("Picture1", index))).Fill(content);
}

void PreviewForm::BuildPanels()
{
    if (m_panels)
        return;
    m_panels.emplace(m_bench, Job(), m_windows.MakeFolder, m_windows.PickedFile);
    int index = 0;
    for (QWidget* panel : m_panels->InOrder())
        AddPanelOf(++index, panel);
    ConnectPanels();
    SetReadingOrder(*this);
}

void PreviewForm::ConnectPanels()
{
    connect(m_panels->Editor, &EditorPanel::EditorChosen, this, &PreviewForm::Next);
    connect(m_panels->Insert, &InsertPanel::Complained, this, &PreviewForm::ShowComplaint);
    connect(m_panels->Insert, &InsertPanel::ManualWanted, this, &PreviewForm::InsertByHand);
    connect(m_panels->Insert, &InsertPanel::PointingWanted, this,
            [this](const Text& page) { EndWith(DeliveryEnd::Pointing, page); });
    for (CodePanel* code : m_panels->Codes)
        connect(code, &CodePanel::PointingWanted, this,
                [this] { EndWith(DeliveryEnd::Pointing, m_page); });
    connect(m_panels->Finish, &FinishPanel::PageEffectsWanted, this,
            [this](const Text& page) { EndWith(DeliveryEnd::PageEffects, page); });
    connect(m_panels->Insert, &InsertPanel::Delivered, this, [this] { GoOnTo(9); });
    connect(m_panels->Insert, &InsertPanel::FilesMissing, this, [this](const Text& folder) {
        m_panels->Publish->GoTo(folder);
        GoOnTo(8);
    });
    connect(m_panels->Finish, &FinishPanel::BringBackWanted, this, [this](const Text& page) {
        if (m_windows.BringBack(page)) {
            // The earlier version may hold the effect as well.
            const bool isStillThere = HoldsEffect(m_bench.Files, page, m_payload).value_or(false);
            m_report.PageBroughtBack(page, isStillThere);
            if (!isStillThere)
                m_panels->Insert->EffectTakenBack(page);
        }
        ShowFinishAnew();
    });
    connect(m_panels->Finish, &FinishPanel::PageScriptWanted, this, &PreviewForm::AddPageScript);
    connect(m_panels->Finish, &FinishPanel::AnotherPageWanted, this,
            &PreviewForm::PutIntoAnotherPage);
    connect(m_panels->Publish, &PublishPanel::ControlsChanged, this,
            [this](const PublishControls& controls) {
                cmdPrevious->setVisible(controls.cmdPrevious);
                cmdNext->setVisible(controls.cmdNext);
            });
    connect(m_panels->Publish, &PublishPanel::DefaultButtonChanged, this,
            [this] { SetEnterButton(m_panels->Publish->DefaultButton()); });
    connect(m_panels->Publish, &PublishPanel::CopyingDone, this,
            [this] { FinishCopying(DoneCopying(Facts().HasHead)); });
    connect(m_panels->Publish, &PublishPanel::PreviewWanted, this,
            [this] { FinishCopying(PreviewAfterCopying()); });
}

void PreviewForm::setVisible(bool isVisible)
{
    // The page loads while the window comes up.
    if (isVisible && m_bench.Pane.IsReady() && !std::exchange(m_isPreviewed, true))
        BeginPreview();
    WizardFrame::setVisible(isVisible);
}

void PreviewForm::paintEvent(QPaintEvent* event)
{
    WizardFrame::paintEvent(event);
    // The browser takes a moment to load.
    if (!std::exchange(m_isPreviewed, true))
        QTimer::singleShot(0, this, &PreviewForm::BeginPreview);
}

void PreviewForm::Next()
{
    BuildPanels();
    if (m_step.PageStep == 2)
        m_panels->Editor->Keep(m_bench.Settings);
    if (Mode() == InsertMode::ManualCopy)
        m_panels->OfferEditorHelp(m_bench.Settings, m_payload.ScriptedHelp);
    ChangePage(NextStep(m_step, Mode(), Facts()));
}

void PreviewForm::Previous()
{
    LeaveFinish();
    ChangePage(PreviousStep(m_step, Mode(), Facts()));
}

void PreviewForm::ChangePage(DeliveryStep step)
{
    m_step = step;
    if (step.PageStep <= 0) {
        m_end = DeliveryEnd::BackToWizard;
        accept();
        return;
    }
    const DeliveryPage page = DescribePage(step, Mode());
    ShowPage(page, page.Panel);
    if (m_panels)
        for (CodePanel* code : m_panels->Codes)
            code->OfferPointing(!m_page.empty());
    SetEnterButton(nullptr);
    switch (step.PageStep) {
    case 1:
        OfferLastPage();
        break;
    case 2:
        m_panels->Editor->PageShown();
        break;
    case 3:
        m_page.clear();
        m_panels->Editor->Keep(m_bench.Settings);
        m_panels->Method->PageShown();
        break;
    case 4:
        SetEnterButton(m_panels->Insert->DefaultButton(Mode() == InsertMode::NewPage));
        m_panels->Insert->PageShown(Mode() == InsertMode::NewPage);
        break;
    case 5:
        m_panels->Codes[0]->ShowPageScript(m_payload.WantsPageScript);
        cmdPrevious->setEnabled(true);
        break;
    case 8:
        m_panels->Publish->PageShown();
        break;
    case 9:
        ShowFinish();
        break;
    default:
        break;
    }
}

void PreviewForm::ShowPage(const DeliveryPage& page, int panel)
{
    SetHeading(page.Heading, page.SubHeading);
    SetHelpTopic(page.HelpContext);
    ShowPanel(panel);
    // "Publish" has its letter.
    cmdPrevious->setText(panel == publishPanel ? QStringLiteral("<< P&revious")
                                               : QStringLiteral("<< &Previous"));
}

void PreviewForm::SetEnterButton(QPushButton* action)
{
    const bool isOnTheWayBack = cmdPrevious->hasFocus() && action == nullptr;
    if (action == nullptr)
        action = cmdNext;
    action->setDefault(true);
    if (!isOnTheWayBack)
        action->setFocus();
}

/// Offers the page that the author worked on last.
void PreviewForm::OfferLastPage()
{
    const auto pages = RecentFiles(m_bench.Settings, m_bench.Files, recentPages);
    m_preview->OfferPage(pages.empty() ? Text() : pages.front());
}

/// Does what the following pages do with what they begin with. An author whose page cannot take the
/// effect is left on the page that says so.
void PreviewForm::PutIntoPage(const Text& page)
{
    BuildPanels();
    m_panels->Method->Choose(InsertMode::AutoInsert);
    while (m_step.PageStep < 4)
        m_step = NextStep(m_step, InsertMode::AutoInsert, Facts());
    ChangePage(m_step);
    m_panels->Insert->PutInto(page);
}

void PreviewForm::PutIntoAnotherPage()
{
    const auto page = m_bench.Dialogs.OpenFile(ExistingPageRequest());
    if (!page)
        return;
    LeaveFinish();
    m_step = {};
    PutIntoPage(*page);
}

void PreviewForm::LeaveFinish()
{
    cmdNext->setEnabled(true);
    cmdCancel->setText(QStringLiteral("&Cancel"));
}

void PreviewForm::ShowFinish()
{
    cmdNext->setEnabled(false);
    cmdCancel->setText(QStringLiteral("&Done"));
    SetEnterButton(cmdCancel);
    m_panels->Finish->PageShown();
}

void PreviewForm::Preview(PreviewMode mode)
{
    const bool wantsOptions = [&] {
        const WaitCursor wait;
        return LinkToBrowser(m_bench, m_payload, mode);
    }();
    if (wantsOptions)
        m_windows.ShowOptions();
}

void PreviewForm::ChoosePageScript(bool isWanted)
{
    m_payload.WantsPageScript = isWanted && !RunsByItself(m_payload.Effect);
    m_bench.Settings.Put(settingKeys::runsToday, isWanted ? u"1" : u"0");
    Preview(PreviewMode::Inline);
}

void PreviewForm::AddPageScript(const std::vector<Text>& pages)
{
    m_payload.WantsPageScript = true;
    m_bench.Settings.Put(settingKeys::runsToday, u"1");
    m_preview->CheckPageScript();
    const BackupsPlace place = BackupsPlaceIn(m_bench.StateFolder, m_bench.Today());
    for (const Text& page : pages)
        if (InsertPageScript(m_bench.Files, m_bench.Dialogs, page, m_payload, place))
            CopyPageScriptTo(Job(), FolderOf(page));
    ShowFinishAnew();
}

void PreviewForm::ShowFinishAnew()
{
    m_panels->Finish->PageShown();
    // The control that had the focus may be gone.
    SetEnterButton(cmdCancel);
}

void PreviewForm::BeginPreview()
{
    const MissingFiles missing = CopyRequiredFilesForPreview(Job());
    if (missing.empty()) {
        // Not sooner: the engine takes its steps with the page in this thread.
        m_bench.Pane.Loaded = [this] { QTimer::singleShot(0, this, &PreviewForm::BuildPanels); };
        Preview(PreviewMode::Inline);
        return;
    }
    SetHeading(missingForPreviewHeading, missingForPreviewSubHeading);
    BuildPanels();
    ShowPanel(publishPanel);
    m_panels->Publish->FindMissing(PublishMode::MissingForPreview, missing,
                                   m_bench.Core.ProgramFolder);
}

void PreviewForm::FinishCopying(const AfterCopying& after)
{
    m_panels->Publish->PageShown();
    ShowPage(
        DescribePage({static_cast<std::int16_t>(after.HeadingPage), m_step.StepNumber}, Mode()),
        after.Panel);
    cmdNext->setEnabled(after.IsNextEnabled);
    cmdPrevious->setEnabled(after.IsPreviousEnabled);
    cmdCancel->setText(ToQt(after.CancelCaption));
    m_panels->Finish->PageShown();
    SetEnterButton(after.IsNextEnabled ? cmdNext : cmdCancel);
    if (after.IsPreviewed)
        Preview(PreviewMode::Inline);
}

void PreviewForm::EndWith(DeliveryEnd end, const Text& page)
{
    m_page = page;
    m_end = end;
    accept();
}

/// Leads through the steps by hand, since there is no place for the effect in this page.
void PreviewForm::InsertByHand(const Text& page)
{
    m_page = page;
    m_panels->Method->Choose(InsertMode::ManualCopy);
    m_step.PageStep = 2; // the editor is not asked for on this way
    Next();
}

void PreviewForm::GoOnTo(std::int16_t page)
{
    ++m_step.StepNumber;
    m_step.PageStep = page;
    ChangePage(m_step);
}

CopyJob PreviewForm::Job()
{
    return {m_payload, m_bench.Core.ProgramFolder, m_bench.Files, m_bench.Dialogs, m_report};
}

InsertMode PreviewForm::Mode() const
{
    return m_panels ? m_panels->Method->Mode() : InsertMode::AutoInsert;
}

DeliveryFacts PreviewForm::Facts() const
{
    return FactsOf(m_payload, !m_bench.Settings.Get(settingKeys::webPageEditor).empty());
}

} // namespace orvane
