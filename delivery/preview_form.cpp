#include "delivery/preview_form.h"

#include "core/todays_browsers.h"
#include "delivery/editor_panel.h"
#include "delivery/finish_panel.h"
#include "delivery/ftp_panel.h"
#include "delivery/insert_panel.h"
#include "delivery/method_panel.h"
#include "delivery/preview_panel.h"
#include "windows/qt_text.h"
#include "windows/wait_cursor.h"

#include <QPushButton>
#include <QTimer>

#include <tuple>
#include <utility>

namespace orvane {

PreviewForm::PreviewForm(Workbench& bench, const EffectPayload& effect, QWidget* pane,
                         PreviewWindows windows, QWidget* parent)
    : WizardFrame("Preview", bench, parent),
      m_payload(Finish(effect)),
      m_pane(pane),
      m_windows(std::move(windows))
{
    setWindowTitle(QStringLiteral("Preview Wizard"));
    m_payload.RunsToday = bench.Settings.Get(u"Misc", u"RunsToday", u"0") == u"1";
    AddPanels();
    ConnectPanels();
    AddButtons(Buttons::Paged, "cmdHelp");
    setMinimumSize(640, 440);
    ChangePage(m_step);
}

PreviewForm::~PreviewForm()
{
    m_bench.Pane.Clear();
    // It is gone already when the embedded browser was the last to show it.
    std::ignore = m_bench.Files.Remove(PreviewPagePath(m_bench.Core));
    m_bench.Core.Payload.HEADHTML.clear();
    m_bench.Core.Payload.BODYHTML.clear();
}

template <class Panel>
Panel* PreviewForm::Add(int index, Panel* panel)
{
    panel->layout()->setContentsMargins({});
    PageBuilder(AddPanel(MemberName("Picture1", index))).Fill(panel);
    return panel;
}

void PreviewForm::AddPanels()
{
    auto* preview = Add(0, new PreviewPanel(m_pane, {InTodaysBrowsers(m_payload.Effect.Kind),
                                                     m_payload.RunsToday}));
    connect(preview, &PreviewPanel::RunsTodayChosen, this, &PreviewForm::ChooseRunsToday);
    connect(preview, &PreviewPanel::PreviewWanted, this, &PreviewForm::Preview);
    m_editorPanel = Add(1, new EditorPanel);
    m_methodPanel = Add(2, new MethodPanel);
    m_insertPanel = Add(3, new InsertPanel(m_bench, Desk()));
    AddCodePanels();
    m_publishPanel = Add(7, new PublishPanel(Desk(), m_bench.Settings, m_windows.MakeFolder));
    // No page shows it.
    Add(8, new FtpPanel(m_bench.Settings));
    m_finishPanel = Add(9, new FinishPanel(m_bench, m_payload, m_report));
}

void PreviewForm::AddCodePanels()
{
    const CodePanel::Words words[] = {
        {"lblNeedHelp(0)", "txtHEADHTML", "cmdCopyHEADHTML", u"HEAD", {}},
        {"lblNeedHelp(1)", "txtBODYHTML", "cmdcopyBODYHTML", u"BODY", {}},
        {"lblNeedHelp(2)", "txtBODYAttribute", "cmdCopyBODYAttrib", u"BODY attribute",
         Join({u"For example:  <BODY", m_payload.BODYAttribute, u">"})},
    };
    const Text* const codes[] = {&m_payload.Effect.HEADHTML, &m_payload.Effect.BODYHTML,
                                 &m_payload.BODYAttribute};
    for (std::size_t i = 0; i < m_codePanels.size(); ++i)
        m_codePanels[i] =
            Add(4 + static_cast<int>(i), new CodePanel(m_bench, words[i], *codes[i], m_report));
}

void PreviewForm::ConnectPanels()
{
    connect(m_editorPanel, &EditorPanel::EditorChosen, this, &PreviewForm::Next);
    connect(m_insertPanel, &InsertPanel::Complained, this, &PreviewForm::Report);
    connect(m_insertPanel, &InsertPanel::ManualWanted, this, &PreviewForm::InsertByHand);
    connect(m_insertPanel, &InsertPanel::Delivered, this, [this] { GoOnTo(9); });
    connect(m_insertPanel, &InsertPanel::FilesMissing, this, [this](const Text& folder) {
        m_publishPanel->GoTo(folder);
        GoOnTo(8);
    });
    connect(m_finishPanel, &FinishPanel::BringBackWanted, this, [this](const Text& page) {
        if (m_windows.BringBack(page))
            m_report.PageBroughtBack(page);
        m_finishPanel->Begin();
    });
    connect(m_publishPanel, &PublishPanel::ControlsChanged, this,
            [this](const PublishControls& controls) {
                cmdPrevious->setVisible(controls.cmdPrevious);
                cmdNext->setVisible(controls.cmdNext);
            });
    connect(m_publishPanel, &PublishPanel::ActionChanged, this,
            [this] { LeadEnterTo(m_publishPanel->Action()); });
    connect(m_publishPanel, &PublishPanel::CopyingDone, this,
            [this] { FinishCopying(DoneCopying()); });
    connect(m_publishPanel, &PublishPanel::PreviewWanted, this,
            [this] { FinishCopying(PreviewAfterCopying()); });
}

void PreviewForm::showEvent(QShowEvent* event)
{
    WizardFrame::showEvent(event);
    if (std::exchange(m_isPreviewed, true))
        return;
    // Once the window is on screen, since the engine may take a moment.
    QTimer::singleShot(0, this, [this] { BeginPreview(); });
}

void PreviewForm::Next()
{
    if (Mode() == InsertMode::ManualCopy)
        OfferEditorHelp();
    ChangePage(NextStep(m_step, Mode(), Facts()));
}

void PreviewForm::Previous()
{
    cmdNext->setEnabled(true);
    cmdCancel->setText(QStringLiteral("&Cancel"));
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
    LeadEnterTo(nullptr);
    switch (step.PageStep) {
    case 2:
        m_editorPanel->Begin();
        break;
    case 3:
        KeepEditor();
        m_methodPanel->Begin();
        break;
    case 4:
        LeadEnterTo(m_insertPanel->Action(Mode() == InsertMode::NewPage));
        m_insertPanel->Begin(Mode() == InsertMode::NewPage);
        break;
    case 5:
        m_codePanels[0]->ShowPageScript(m_payload.RunsToday);
        cmdPrevious->setEnabled(true);
        break;
    case 8:
        m_publishPanel->Begin();
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
}

void PreviewForm::LeadEnterTo(QPushButton* action)
{
    const bool isOnTheWayBack = cmdPrevious->hasFocus() && action == nullptr;
    if (action == nullptr)
        action = cmdNext;
    action->setDefault(true);
    if (!isOnTheWayBack)
        action->setFocus();
}

void PreviewForm::ShowFinish()
{
    cmdNext->setEnabled(false);
    cmdCancel->setText(QStringLiteral("&Done"));
    LeadEnterTo(cmdCancel);
    m_finishPanel->Begin();
}

void PreviewForm::KeepEditor()
{
    const Text editor = m_editorPanel->Chosen();
    if (!editor.empty() && m_bench.Settings.Get(u"Misc", u"HTMLEditor", u"").empty())
        m_bench.Settings.Put(u"Misc", u"HTMLEditor", editor);
}

void PreviewForm::OfferEditorHelp()
{
    /// The own topic of the three pages that show code to copy.
    constexpr int manualPagesTopic = 50;
    const EditorHelp help = setWebPageEditor(m_bench.Settings.Get(u"Misc", u"HTMLEditor", u""),
                                             m_payload.ScriptedHelp, manualPagesTopic);
    for (CodePanel* panel : m_codePanels)
        panel->OfferHelp(help);
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

void PreviewForm::ChooseRunsToday(bool isWanted)
{
    m_payload.RunsToday = isWanted;
    m_bench.Settings.Put(u"Misc", u"RunsToday", isWanted ? u"1" : u"0");
    Preview(PreviewMode::Inline);
}

void PreviewForm::BeginPreview()
{
    const MissingFiles missing = CopyRequiredFilesForPreview(Desk());
    if (missing.empty())
        return Preview(PreviewMode::Inline);
    SetHeading(missingForPreviewHeading, missingForPreviewSubHeading);
    ShowPanel(7);
    m_publishPanel->FindMissing(PublishMode::MissingForPreview, missing,
                                m_bench.Core.ProgramFolder);
}

void PreviewForm::FinishCopying(const AfterCopying& after)
{
    m_publishPanel->Begin();
    ShowPage(
        DescribePage({static_cast<std::int16_t>(after.HeadingPage), m_step.StepNumber}, Mode()),
        after.Panel);
    cmdNext->setEnabled(after.IsNextEnabled);
    cmdPrevious->setEnabled(after.IsPreviousEnabled);
    cmdCancel->setText(ToQt(after.CancelCaption));
    LeadEnterTo(after.IsNextEnabled ? cmdNext : cmdCancel);
    if (after.IsPreviewed)
        Preview(PreviewMode::Inline);
}

void PreviewForm::InsertByHand()
{
    m_methodPanel->Choose(InsertMode::ManualCopy);
    m_step.PageStep = 3;
    Next();
}

void PreviewForm::GoOnTo(std::int16_t page)
{
    ++m_step.StepNumber;
    m_step.PageStep = page;
    ChangePage(m_step);
}

CopyDesk PreviewForm::Desk()
{
    return {m_payload, m_bench.Core.ProgramFolder, m_bench.Files, m_bench.Dialogs, &m_report};
}

InsertMode PreviewForm::Mode() const
{
    return m_methodPanel->Mode();
}

DeliveryFacts PreviewForm::Facts() const
{
    return FactsOf(m_payload, !m_bench.Settings.Get(u"Misc", u"HTMLEditor", u"").empty());
}

} // namespace orvane
