#include "reedit/put_in_form.h"

#include "preview/page_pane_panel.h"
#include "reedit/effect_words.h"
#include "reedit/page_parts.h"
#include "windows/qt_text.h"
#include "windows/shrinking.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

/// Around a new effect, in the pane alone.
constexpr TextView frameBegin = u"<div style=\"outline:3px dashed #c00\">";
constexpr TextView frameEnd = u"</div>";

constexpr TextView sharedQuestion =
    u"This special effect stands in your Web page already.  Both share one script, so that the new "
    u"one's takes the place of the earlier one's.  Do you want to put it in?";

} // namespace

PutInForm::PutInForm(Workbench& bench, PageEffects& page, PutInJob job, QWidget* pane,
                     QWidget* parent)
    : WizardFrame("PutIn", bench, parent),
      m_page(page),
      m_job(std::move(job)),
      m_pane(new PagePanePanel(bench, pane))
{
    const bool isNew = !m_job.Replaced;
    setWindowTitle(isNew ? QStringLiteral("Add an effect") : QStringLiteral("Change an effect"));
    SetHeading(isNew ? u"Put it in" : u"Put it back",
               isNew
                   ? u"Click in your Web page on the part before or after which the special effect "
                     u"goes, or choose that in the list.  Nothing is written yet."
                   : u"This is your Web page with the changed special effect.  Nothing is "
                     u"written yet.");
    SetHelpTopic(help_topics::pageEffects);
    PageBuilder rows = AddPage();
    if (isNew)
        AddPlaces(rows);
    else
        FillShrinking(rows, m_pane, 8);
    lblPutIn = rows.Note({}, "lblPutIn");
    AddButtons(Buttons::Paged);
    cmdNext->setObjectName(isNew ? QStringLiteral("cmdPutIn") : QStringLiteral("cmdPutBack"));
    cmdNext->setText(isNew ? QStringLiteral("Put it &in") : QStringLiteral("Put it &back"));
    setMinimumSize(480, 400);
    resize(isNew ? 480 : 800, 600);
    if (isNew)
        AddSide(m_pane);
}

void PutInForm::AddPlaces(PageBuilder& rows)
{
    lstPlaces = rows.ListBox("lstPlaces", u"Parts of your &Web page:", {});
    lstPlaces->setUniformItemSizes(true);
    optPlace[0] = rows.Option("optPlace", 0, u"B&efore this part");
    optPlace[1] = rows.Option("optPlace", 1, u"&After this part");
    optPlace[0]->setChecked(true);
    connect(lstPlaces, &QListWidget::currentRowChanged, this, [this] { ShowPage(); });
    connect(optPlace[0], &QRadioButton::toggled, this, [this] { ShowPage(); });
    connect(m_pane, &PagePanePanel::Pointed, this, &PutInForm::GoTo);
}

/// Lists the parts of the page anew; the row that was chosen stays so.
void PutInForm::ListPlaces()
{
    const int chosen = std::max(lstPlaces->currentRow(), 0);
    const QSignalBlocker blocker(lstPlaces);
    lstPlaces->clear();
    m_places = PlacesToPoint(m_job.Page);
    m_numbered = WithPartNumbers(m_job.Page, PartsOf(m_job.Page));
    m_numberedPlaces = PlacesToPoint(m_numbered);
    for (const PlaceToPoint& place : m_places)
        lstPlaces->addItem(ToQt(place.Words));
    lstPlaces->setCurrentRow(std::min(chosen, lstPlaces->count() - 1));
}

const PlaceToPoint& PutInForm::ChosenIn(const std::vector<PlaceToPoint>& places) const
{
    return places.at(static_cast<std::size_t>(lstPlaces->currentRow()));
}

std::size_t PutInForm::PlaceIn(const std::vector<PlaceToPoint>& places) const
{
    const PlaceToPoint& place = ChosenIn(places);
    return optPlace[0]->isChecked() ? place.Before : place.After;
}

/// Goes to the place at which the author pointed in the page that is shown.
void PutInForm::GoTo(const PointedPlace& place)
{
    const int last = lstPlaces->count() - 1;
    const int row = place.Part ? *place.Part + 1 : place.IsBehind ? last : 0;
    // Another program may have written the page meanwhile.
    if (place.Part && row >= last)
        return;
    {
        const QSignalBlocker inList(lstPlaces), inOption(optPlace[0]);
        lstPlaces->setCurrentRow(row);
        optPlace[place.IsBehind ? 1 : 0]->setChecked(true);
    }
    ShowPage(Scrolling::Stays);
    lstPlaces->setFocus();
}

void PutInForm::showEvent(QShowEvent* event)
{
    WizardFrame::showEvent(event);
    if (event->spontaneous())
        return;
    m_page.Refresh();
    FollowPage();
    if (lstPlaces != nullptr)
        ListPlaces();
    ShowPage();
    QWidget* first = cmdNext;
    if (lstPlaces != nullptr)
        first = lstPlaces;
    first->setFocus();
}

/// Looks for the effect in the page where another program has written that.
void PutInForm::FollowPage()
{
    if (m_page.Bytes() == m_job.Page)
        return;
    if (m_job.Replaced) {
        auto same = SameEffect(m_page.Bytes(), m_job.Page, *m_job.Replaced);
        m_isThere = same.has_value();
        if (!same)
            return;
        m_job.Replaced = std::move(same);
    }
    m_job.Page = m_page.Bytes();
}

PlacedPage PutInForm::Edited(const FinishedPayload& payload) const
{
    return m_job.Replaced ? WithReplaced(m_job.Page, *m_job.Replaced, payload)
                          : WithEffect(m_job.Page, PlaceIn(m_places), payload);
}

/// The same as the pane shows it.
PlacedPage PutInForm::Shown(const FinishedPayload& payload) const
{
    return m_job.Replaced ? Edited(payload)
                          : WithEffect(m_numbered, PlaceIn(m_numberedPlaces), payload);
}

/// Shows what Next() would write.
void PutInForm::ShowPage(Scrolling scrolling)
{
    FinishedPayload marked = m_job.Payload;
    if (Text& code = marked.Effect.BODYHTML; !code.empty())
        code = Join({u"<!--", shownPlaceMark, u"-->", lstPlaces == nullptr ? u"" : frameBegin, code,
                     lstPlaces == nullptr ? u"" : frameEnd});
    if (lstPlaces != nullptr) {
        const PlaceToPoint& place = ChosenIn(m_places);
        for (QRadioButton* option : optPlace)
            option->setEnabled(place.Before != place.After);
    }
    TextView words;
    if (!m_isThere) {
        words = u"The special effect that was to be changed does not stand in the page any more.";
    } else if (PlacedPage page = Shown(marked); const auto* reason = std::get_if<NoPlace>(&page)) {
        words = Words(*reason);
    } else {
        LivePicture picture =
            PictureWith(marked, HostPage{m_page.Path(), std::get<std::string>(std::move(page))},
                        m_bench.Files, m_bench.Core.ProgramFolder);
        picture.Page.Mark = shownPlaceMark;
        picture.Page.ScrollsToMark = scrolling == Scrolling::ToEffect;
        picture.Page.TakesPointing = lstPlaces != nullptr;
        m_pane->Show(picture.Page);
    }
    lblPutIn->setText(ToQtLines(words));
    lblPutIn->setVisible(!words.empty());
    cmdNext->setEnabled(words.empty());
}

/// Whether nothing gets lost, or the author agrees.
bool PutInForm::MayReplace() const
{
    Text question;
    if (!m_job.Replaced) {
        if (SharingHead(m_page.Effects(), m_job.Payload))
            question = sharedQuestion;
    } else if (!m_job.IsKnown) {
        question = QuestionToReplace(m_job.Page, *m_job.Replaced, m_job.Payload);
    }
    return question.empty() || m_bench.Dialogs.Ask(question);
}

void PutInForm::Next()
{
    PlacedPage edited = Edited(m_job.Payload);
    if (!std::holds_alternative<std::string>(edited) || !MayReplace())
        return;
    if (m_page.Put(m_job.Page, std::get<std::string>(std::move(edited)))) {
        m_end = PutInEnd::Written;
        return accept();
    }
    FollowPage();
    if (lstPlaces != nullptr)
        ListPlaces();
    ShowPage();
}

void PutInForm::Previous()
{
    m_end = PutInEnd::BackToWizard;
    accept();
}

} // namespace orvane
