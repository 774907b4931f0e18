#include "windows/wizard_form.h"

#include "services/drafts.h"
#include "services/made_files.h"
#include "windows/qt_text.h"

#include <QPushButton>
#include <QTimer>

#include <utility>

namespace orvane {

namespace {

constexpr int keepAfterMilliseconds = 500;

} // namespace

WizardForm::WizardForm(ControlName name, EffectKind kind, Workbench& bench, QWidget* parent)
    : WizardFrame(name, bench, parent),
      m_keepTimer(new QTimer(this)),
      lblTakeUp(AddOffer("lblTakeUp", u"Take up where you left off")),
      lblAsLastTime(AddOffer("lblAsLastTime", u"As last time"))
{
    SetEffect(kind);
    m_keepTimer->setSingleShot(true);
    m_keepTimer->setInterval(keepAfterMilliseconds);
    connect(m_keepTimer, &QTimer::timeout, this, &WizardForm::KeepDraft);
}

PageBuilder WizardForm::AddPage(const WizardPage& words)
{
    m_words.push_back(words);
    if (m_words.size() == 1)
        SetHeading(words.Heading, words.SubHeading);
    return WizardFrame::AddPage();
}

void WizardForm::GoTo(int page)
{
    const WizardPage& words = WordsOf(page);
    SetHeading(words.Heading, words.SubHeading);
    if (cmdPrevious != nullptr) {
        cmdPrevious->setEnabled(page > 0);
        cmdNext->setText(PageAfter(page) < 0 ? QStringLiteral("&Done")
                                             : QStringLiteral("&Next >>"));
    }
    ShowPanel(page);
    FocusOn(page);
}

void WizardForm::FocusOn(int page)
{
    const WizardPage& words = WordsOf(page);
    auto* control =
        words.Focus.empty() ? FirstControl(*PanelAt(page)) : findChild<QWidget*>(ToQt(words.Focus));
    if (control != nullptr)
        LeadTo(*control);
}

void WizardForm::SetEffect(EffectKind kind)
{
    const CatalogueRow* row = FindRow(kind);
    m_effect = row == nullptr ? ControlName() : row->MenuCommand;
    if (row != nullptr)
        setWindowTitle(ToQt(row->Title));
    SetHelpTopic(help_topics::firstEffect + static_cast<int>(kind));
}

Text WizardForm::DraftPath() const
{
    return DraftPathOf(m_bench.StateFolder, m_effect);
}

Text WizardForm::LastTimePath() const
{
    return LastTimePathOf(m_bench.StateFolder, m_effect);
}

void WizardForm::BeginDrafts(bool isFresh)
{
    m_kept = Draft();
    const auto kept = [&](const Text& path) {
        return isFresh ? ReadDraftFile(m_bench.Files, path) : std::nullopt;
    };
    const auto draft = kept(DraftPath());
    const auto lastTime = kept(LastTimePath());
    Offer(*lblTakeUp, draft);
    Offer(*lblAsLastTime, lastTime == draft ? std::nullopt : lastTime);
}

/// Offers these fields by the link, unless the window shows them already.
void WizardForm::Offer(LinkLabel& offer, const std::optional<Text>& fields)
{
    offer.setVisible(fields && *fields != m_kept);
    if (!fields)
        return;
    connect(&offer, &LinkLabel::Followed, this, [this, &offer, text = *fields] {
        TakeDraft(text);
        m_kept = Draft();
        offer.hide();
        focusNextChild();
    });
}

/// A running timer goes on, so that an author who types without a stop is kept too.
void WizardForm::KeepDraftSoon()
{
    if (isVisible() && !m_keepTimer->isActive())
        m_keepTimer->start();
}

void WizardForm::KeepDraft()
{
    if (m_kept.empty())
        return;
    Text draft = Draft();
    if (draft == m_kept)
        return;
    WriteDraftFile(m_bench.Files, DraftPath(), draft);
    m_kept = std::move(draft);
}

void WizardForm::WasDelivered()
{
    if (ReadDraftFile(m_bench.Files, DraftPath()) == m_kept)
        DropDraftFile(m_bench.Files, DraftPath());
    m_kept = Draft();
    WriteDraftFile(m_bench.Files, LastTimePath(), m_kept);
}

void WizardForm::showEvent(QShowEvent* event)
{
    // Else what is typed at once would go to an offer above the page.
    if (!event->spontaneous() && focusWidget() == nullptr)
        FocusOn(Page());
    WizardFrame::showEvent(event);
}

void WizardForm::hideEvent(QHideEvent* event)
{
    m_keepTimer->stop();
    KeepDraft();
    WizardFrame::hideEvent(event);
}

std::optional<EffectPayload> WizardForm::TakePayload()
{
    return std::exchange(m_payload, {});
}

void WizardForm::Deliver(EffectPayload payload)
{
    const Done written = WriteMadeFiles(m_bench.Files, m_bench.Core.ProgramFolder, payload);
    if (const Fault* fault = FaultIn(written))
        return ShowComplaint({Text(Words(*fault)), {}});
    m_bench.Core.SavedHEAD = payload.SavedHEAD;
    m_bench.Core.SavedBODY = payload.SavedBODY;
    m_payload = std::move(payload);
    accept();
}

} // namespace orvane
