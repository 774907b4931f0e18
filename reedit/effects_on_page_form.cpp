#include "reedit/effects_on_page_form.h"

#include "core/file_names.h"
#include "insertion/page_script.h"
#include "preview/page_pane_panel.h"
#include "reedit/taking_out.h"
#include "services/page_requests.h"
#include "services/recent_files.h"
#include "windows/file_drop.h"
#include "windows/qt_text.h"
#include "windows/recent_menu.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr int pictureSize = 32;

QListWidgetItem* RowOf(const ListedEffect& effect)
{
    Text words = Join({effect.Title, u"\n", effect.Place, u" \u00B7 ", effect.State});
    if (!effect.Files.empty())
        words += Join({u" \u00B7 ", Listed(effect.Files)});
    auto* row = new QListWidgetItem(ToQt(words));
    if (!effect.Picture.empty())
        row->setIcon(QIcon(QStringLiteral(":/pictures/%1.svg").arg(ToQt(effect.Picture))));
    row->setData(Qt::AccessibleTextRole, ToQt(SentenceOf(effect)));
    return row;
}

/// What a list of effects scrolls a page to: the effect's first block that a visitor sees.
std::optional<std::size_t> PlaceToShow(const EffectInPage& effect)
{
    const auto part = std::ranges::find(effect.Parts, PartPlace::Body, &EffectPart::Place);
    return part == effect.Parts.end() ? std::nullopt : std::optional(part->Span.Begin);
}

} // namespace

EffectsOnPageForm::EffectsOnPageForm(Workbench& bench, PageEffects& page, QWidget* pane,
                                     std::function<void(TextView folder)> copyPageScript,
                                     QWidget* parent)
    : WizardFrame("PageEffects", bench, parent),
      m_page(page),
      m_copyPageScript(std::move(copyPageScript)),
      m_pane(new PagePanePanel(bench, pane))
{
    setWindowTitle(QStringLiteral("Effects on a page"));
    SetHeading(u"Effects on a page", u"See which special effects of Orvane stand in a Web page.");
    SetHelpTopic(help_topics::pageEffects);
    PageBuilder rows = AddPage();
    AddPageRow(rows);
    lstPageEffects = rows.ListBox("lstPageEffects", u"Special effects &in it:", {});
    lstPageEffects->setIconSize({pictureSize, pictureSize});
    lstPageEffects->setWordWrap(true);
    lblEffect = rows.Note({}, "lblEffect");
    AddCommands(rows);
    AddButtons(Buttons::OnePage);
    cmdNext->hide();
    cmdCancel->setText(QStringLiteral("&Close"));
    setMinimumSize(480, 400);
    AddSide(m_pane);
    connect(new FileDrop(*this, pageMasks, bench, 1), &FileDrop::Dropped, this,
            [this](const std::vector<Text>& pages) { GoTo(pages.front()); });
}

void EffectsOnPageForm::AddPageRow(PageBuilder& rows)
{
    cmdBrowseForPage = rows.Button("cmdBrowseForPage", u"B&rowse for page...");
    connect(cmdBrowseForPage, &QPushButton::clicked, this, &EffectsOnPageForm::BrowseForPage);
    QPushButton* cmdRecentPages = rows.Button("cmdRecentPages", u"R&ecent pages");
    auto* recent = new QMenu(cmdRecentPages);
    OfferRecentFiles(*recent, recentPages, m_bench, [this](const Text& path) { GoTo(path); });
    cmdRecentPages->setMenu(recent);
    txtPage = new QLineEdit;
    txtPage->setObjectName(QStringLiteral("txtPage"));
    txtPage->setReadOnly(true);
    rows.Row(u"Web page:", {txtPage, cmdBrowseForPage, cmdRecentPages});
}

void EffectsOnPageForm::AddCommands(PageBuilder& rows)
{
    connect(lstPageEffects, &QListWidget::itemSelectionChanged, this,
            &EffectsOnPageForm::ShowEffect);
    connect(lstPageEffects, &ActingList::Deleted, this, &EffectsOnPageForm::TakeOut);
    connect(lstPageEffects, &ActingList::Entered, this, &EffectsOnPageForm::Change);
    connect(lstPageEffects, &ActingList::RowDoubleClicked, this, &EffectsOnPageForm::Change);
    cmdChange = rows.Button("cmdChange", u"C&hange...", u"Opens the effect's wizard (Enter)");
    connect(cmdChange, &QPushButton::clicked, this, &EffectsOnPageForm::Change);
    cmdTakeOut = rows.Button("cmdTakeOut", u"&Take out...", u"Takes the effect out (Delete)");
    connect(cmdTakeOut, &QPushButton::clicked, this, &EffectsOnPageForm::TakeOut);
    cmdBringBack = rows.Button("cmdBringBack", u"Bring &back",
                               u"Gives the page back as it was before the last change (Ctrl+Z)");
    connect(cmdBringBack, &QPushButton::clicked, this, &EffectsOnPageForm::BringBack);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Z, this), &QShortcut::activated, cmdBringBack,
            &QPushButton::click);
    cmdAddEffect = rows.Button("cmdAddEffect", u"&Add an effect...");
    connect(cmdAddEffect, &QPushButton::clicked, this, [this] {
        m_wanted.emplace();
        accept();
    });
    rows.Buttons({cmdChange, cmdTakeOut, cmdBringBack, cmdAddEffect});
    chkRunsToday = rows.CheckBox("chkRunsToday", u"&Make it run in today's browsers",
                                 u"Lets your Web page use Orvane's page script, orvane.js");
    connect(chkRunsToday, &QCheckBox::clicked, this, &EffectsOnPageForm::ChoosePageScript);
}

void EffectsOnPageForm::showEvent(QShowEvent* event)
{
    WizardFrame::showEvent(event);
    if (event->spontaneous())
        return;
    m_page.Refresh();
    ShowEffects();
    QWidget* first = cmdBrowseForPage;
    if (lstPageEffects->count() > 0)
        first = lstPageEffects;
    first->setFocus();
}

/// The author may have changed the page in an editor meanwhile.
void EffectsOnPageForm::changeEvent(QEvent* event)
{
    WizardFrame::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible() &&
        m_page.Refresh())
        ShowEffects();
}

void EffectsOnPageForm::BrowseForPage()
{
    if (const auto path = m_bench.Dialogs.OpenFile(ExistingPageRequest()))
        GoTo(*path);
}

void EffectsOnPageForm::GoTo(const Text& path)
{
    m_page.GoTo(path);
    if (!m_page.Unread())
        PutRecentFile(m_bench.Settings, recentPages, path);
    ShowEffects();
    if (lstPageEffects->count() > 0)
        lstPageEffects->setFocus();
}

/// Lists the effects anew; the row that was chosen stays so.
void EffectsOnPageForm::ShowEffects()
{
    txtPage->setText(ToQt(m_page.Path()));
    const int chosen = std::max(lstPageEffects->SelectedRow(), 0);
    {
        const QSignalBlocker blocker(lstPageEffects);
        lstPageEffects->clear();
        for (const ListedEffect& effect : ListEffects(m_page.Bytes(), m_page.Effects()))
            lstPageEffects->addItem(RowOf(effect));
        lstPageEffects->setCurrentRow(std::min(chosen, lstPageEffects->count() - 1));
    }
    const bool hasScript = HasPageScript(m_page.Bytes());
    chkRunsToday->setChecked(hasScript);
    chkRunsToday->setVisible(hasScript ||
                             std::ranges::any_of(m_page.Effects(), &EffectInPage::NeedsPageScript));
    ShowEffect();
}

void EffectsOnPageForm::ShowEffect()
{
    const EffectInPage* effect = Chosen();
    lblEffect->setText(ToQtLines(Note()));
    const bool isFree = effect != nullptr && CanBeTouched(*effect);
    cmdChange->setEnabled(isFree && !effect->Kinds.empty());
    cmdTakeOut->setEnabled(isFree);
    cmdBringBack->setEnabled(m_page.HasEarlier());
    cmdAddEffect->setEnabled(!m_page.Path().empty() && !m_page.Unread());
    if (!m_page.Path().empty())
        m_pane->Show(PictureOf(m_page.Path(), m_page.Bytes(),
                               effect == nullptr ? std::nullopt : PlaceToShow(*effect)));
}

/// What the line below the list says.
TextView EffectsOnPageForm::Note() const
{
    if (m_page.Path().empty())
        return u"Find the Web page whose special effects you want to see, or drop it here.";
    if (const auto& fault = m_page.Unread())
        return Words(*fault);
    if (m_page.Effects().empty())
        return u"No special effect of Orvane stands in this Web page.";
    const EffectInPage* effect = Chosen();
    if (effect == nullptr)
        return {};
    if (const TextView why = WhyNotTouched(effect->State); !why.empty())
        return why;
    if (effect->Kinds.empty())
        return u"Orvane has no wizard for this special effect, but can take it out.";
    return effect->State == EffectState::Changed
               ? u"The code of this special effect was changed by hand."
               : TextView();
}

const EffectInPage* EffectsOnPageForm::Chosen() const
{
    const int row = lstPageEffects->SelectedRow();
    return row < 0 ? nullptr : &m_page.Effects().at(static_cast<std::size_t>(row));
}

void EffectsOnPageForm::Change()
{
    if (!cmdChange->isEnabled())
        return;
    m_wanted = {*Chosen()};
    accept();
}

std::optional<WantedOnPage> EffectsOnPageForm::TakeWanted()
{
    return std::exchange(m_wanted, {});
}

void EffectsOnPageForm::TakeOut()
{
    const EffectInPage* chosen = Chosen();
    if (chosen == nullptr || !CanBeTouched(*chosen))
        return;
    // While the author is asked, the window may read the page anew.
    const std::string shown = m_page.Bytes();
    const std::string edited = Without(shown, *chosen);
    if (m_bench.Dialogs.Ask(QuestionToTakeOut(shown, *chosen)) && m_page.Put(shown, edited))
        Tell(u"Taken out.  Ctrl+Z brings it back.");
    ShowEffects();
}

void EffectsOnPageForm::BringBack()
{
    if (m_page.BringBack())
        Tell(u"The page is as it was before.");
    ShowEffects();
}

void EffectsOnPageForm::ChoosePageScript(bool isWanted)
{
    const std::string shown = m_page.Bytes();
    std::string edited = isWanted ? WithPageScript(shown) : WithoutPageScript(shown);
    if (isWanted)
        RenewPageScript(edited, true);
    if (edited == shown)
        m_bench.Dialogs.Say(u"The page script finds no place: your Web page has no HEAD tag.");
    else if (m_page.Put(shown, edited) && isWanted)
        m_copyPageScript(FolderOf(m_page.Path()));
    ShowEffects();
}

} // namespace orvane
