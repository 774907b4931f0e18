#include "effects/text/text_transitions_form.h"

#include "core/pick_lists.h"
#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

#include <array>

namespace orvane {

namespace {

constexpr TextView textHeading = u"Text Transitions";
constexpr TextView imageHeading = u"Image Transitions";

constexpr ChoiceItem modes[] = {{u"0", u"Texts"}, {u"1", u"Pictures"}};

constexpr ChoiceItem fits[] = {{u"contain", u"Show all of each picture"},
                               {u"cover", u"Fill the size, cut what is over"},
                               {u"fill", u"Stretch to the size"}};

/// The 24 transitions behind their numbers.
std::array<ChoiceItem, RevealTransitions.size()> Transitions()
{
    std::array<ChoiceItem, RevealTransitions.size()> items;
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i] = {TextTransitions::Transitions[i], RevealTransitions[i]};
    return items;
}

} // namespace

TextTransitionsForm::TextTransitionsForm(Workbench& bench, QWidget* parent)
    : EffectForm("TextTransitions", bench, parent, EffectKind::TextTransitions,
                 TextTransitions::Faces()[bench.Core.TransitionsImageMode ? 1 : 0]),
      m_heading(bench.Core.TransitionsImageMode ? imageHeading : textHeading)
{
    AddItemsPage();
    AddChangePage();
    AddLookPage();
    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
    if (bench.Core.TransitionsImageMode)
        setWindowTitle(ToQt(imageHeading));
}

void TextTransitionsForm::AddItemsPage()
{
    PageBuilder page = AddPage({m_heading,
                                u"Enter what is shown, in its order.  Each item can lead "
                                u"to a Web page.",
                                m_bench.Core.TransitionsImageMode ? "lstPictures" : "lstMessages"});
    page.ChoiceBox("TransitionsImageMode", u"&What changes:", modes);
    AddMessageList(page, EffectKind::TextTransitions, MessageText::Lines, m_bench)
        ->setObjectName(QStringLiteral("panMessages"));
    auto* pictures = new PictureListPanel(EffectKind::TextTransitions, PictureWords::Own, m_bench);
    pictures->setObjectName(QStringLiteral("panPictures"));
    page.Fill(pictures);
}

void TextTransitionsForm::AddChangePage()
{
    PageBuilder page =
        AddPage({m_heading, u"Choose one of 24 transitions, and how often they come."});
    page.ChoiceBox("cboTransition", u"&Transition:", Transitions());
    page.NumberBox("txtSeconds", u"Ch&ange after:", u"The time from one change to the next",
                   u"seconds");
    page.NumberBox("txtDuration", u"A change ta&kes:", {}, u"seconds");
    AddTimes(page);
    page.Fill();
}

void TextTransitionsForm::AddLookPage()
{
    PageBuilder page = AddPage({m_heading, u"Choose what it looks like."});
    AddTextLook(page);
    page.NumberBox("txtWidth", u"&Width:", u"0 is as wide as the pictures", u"pixels");
    page.NumberBox("txtHeight", u"&Height:", u"0 is as high as the pictures", u"pixels");
    page.ChoiceBox("cboFit", u"In this &size:", fits);
    AddTarget(page);
    page.Fill();
}

} // namespace orvane
