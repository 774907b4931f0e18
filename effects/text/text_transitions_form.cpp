#include "effects/text/text_transitions_form.h"

#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

namespace orvane {

namespace {

constexpr TextView textHeading = u"Text Transitions";
constexpr TextView imageHeading = u"Image Transitions";

constexpr ChoiceItem modes[] = {{u"0", u"Texts"}, {u"1", u"Pictures"}};

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
    AddTransition(page, "cboTransition", u"&Transition:");
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
    AddPictureSize(page);
    AddTarget(page);
    page.Fill();
}

} // namespace orvane
