#include "delivery/preview_form.h"

#include "insertion/new_page.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <tuple>
#include <utility>

namespace orvane {

namespace {

/// Shows the wait pointer for as long as it lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

PreviewForm::PreviewForm(Workbench& bench, const EffectPayload& effect, QWidget* pane,
                         PreviewWindows windows, QWidget* parent)
    : WizardFrame("Preview", bench, parent),
      m_payload(Finish(effect)),
      m_pane(pane),
      m_windows(std::move(windows))
{
    setWindowTitle(QStringLiteral("Preview Wizard"));
    AddPreviewPanel();
    AddEditorPanel();
    AddMethodPanel();
    AddPagePanel();
    AddCodePanels();
    AddPublishPanel();
    AddFinishPanel();
    AddButtons(Buttons::Paged, "cmdHelp");
    setMinimumSize(640, 520);
    ChangePage(m_step);
}

PreviewForm::~PreviewForm()
{
    m_bench.Pane.Clear();
    if (m_pane != nullptr) {
        m_pane->hide();
        m_pane->setParent(nullptr);
    }
    // It is gone already when the embedded browser was the last to show it.
    std::ignore = m_bench.Files.Remove(PreviewPagePath(m_bench.Core));
    m_bench.Core.Payload.HEADHTML.clear();
    m_bench.Core.Payload.BODYHTML.clear();
}

Done PreviewForm::SaveHTMLtoFile(TextView path)
{
    const WaitCursor wait;
    return orvane::SaveHTMLtoFile(m_bench.Files, path, m_payload);
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
    SetHeading(page.Heading, page.SubHeading);
    SetHelpTopic(page.HelpContext);
    ShowPanel(page.Panel);
    switch (step.PageStep) {
    case 2:
        lstHTMLEditors->setFocus();
        break;
    case 3:
        KeepEditor();
        optInsertMode[static_cast<std::size_t>(Mode())]->setFocus();
        break;
    case 4:
        ShowPageControls();
        break;
    case 5:
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

void PreviewForm::KeepEditor()
{
    const QListWidgetItem* editor = lstHTMLEditors->currentItem();
    if (editor != nullptr && m_bench.Settings.Get(u"Misc", u"HTMLEditor", u"").empty())
        m_bench.Settings.Put(u"Misc", u"HTMLEditor", FromQt(editor->text()));
}

void PreviewForm::ShowPageControls()
{
    const bool isNewPage = Mode() == InsertMode::NewPage;
    lblAutoStep1->setText(isNewPage
                              ? QStringLiteral("1. Save your new Web page by pressing the 'Save as "
                                               "New Web page' button below.")
                              : QStringLiteral("1. Find your Web page using the browse button "
                                               "below."));
    for (QWidget* control : std::initializer_list<QWidget*>{
             lblAutoStep2, lblAutoStep3, txtFileName, cmdBrowse, cmdAutoInsert, lblBackupFile})
        control->setVisible(!isNewPage);
    cmdSaveWebPage->setVisible(isNewPage);
    (isNewPage ? static_cast<QWidget*>(cmdSaveWebPage) : txtFileName)->setFocus();
}

void PreviewForm::ShowFinish()
{
    cmdNext->setEnabled(false);
    cmdCancel->setText(QStringLiteral("&Done"));
    cmdCancel->setFocus();
    if (m_payload.NeedsFiles && !std::exchange(m_filesListed, true))
        for (const Text& name : ListedFiles(m_payload))
            lstFilesToUpload->addItem(ToQt(name));
}

void PreviewForm::Preview(PreviewMode mode)
{
    const WaitCursor wait;
    LinkToBrowser(m_bench, m_payload, mode, m_windows.ShowOptions);
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
    const DeliveryPage page =
        DescribePage({static_cast<std::int16_t>(after.HeadingPage), m_step.StepNumber}, Mode());
    SetHeading(page.Heading, page.SubHeading);
    SetHelpTopic(page.HelpContext);
    ShowPanel(after.Panel);
    cmdNext->setEnabled(after.IsNextEnabled);
    cmdPrevious->setEnabled(after.IsPreviousEnabled);
    cmdCancel->setText(ToQt(after.CancelCaption));
    if (after.IsPreviewed)
        Preview(PreviewMode::Inline);
}

InsertMode PreviewForm::Mode() const
{
    for (std::size_t i = 0; i < optInsertMode.size(); ++i)
        if (optInsertMode[i]->isChecked())
            return static_cast<InsertMode>(i);
    return InsertMode::AutoInsert;
}

DeliveryFacts PreviewForm::Facts() const
{
    return FactsOf(m_payload, !m_bench.Settings.Get(u"Misc", u"HTMLEditor", u"").empty());
}

} // namespace orvane
