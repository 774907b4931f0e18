#include "effects/page/thought_bubbles_form.h"

#include "core/numbers.h"
#include "services/block_values.h"
#include "windows/block_rows.h"
#include "windows/file_rows.h"
#include "windows/multi_line_box.h"
#include "windows/place_picture.h"
#include "windows/qt_text.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Thought Bubbles";
constexpr QSize room(360, 180);

constexpr ChoiceItem shows[] = {{u"hover", u"While the mouse is over the spot"},
                                {u"click", u"After a click on the spot"},
                                {u"always", u"Always"}};

constexpr ChoiceItem tails[] = {{u"left", u"At the left of the bubble"},
                                {u"middle", u"In the middle"},
                                {u"right", u"At the right of the bubble"}};

QPoint PlaceOf(TextView x, TextView y)
{
    const auto percent = [](TextView text) {
        return static_cast<int>(Val(MendedNumber(text, {0, 100}, u"50")));
    };
    return {percent(x), percent(y)};
}

} // namespace

ThoughtBubblesForm::ThoughtBubblesForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmBubbleText", bench, parent)
{
    AddPicturePage();
    AddWordsPage();
    AddLookPage();
    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

void ThoughtBubblesForm::AddPicturePage()
{
    PageBuilder page = AddPage({heading,
                                u"Choose a picture of people or pets, and describe it for "
                                u"those who cannot see it.",
                                "cmdBrowseForImage"});
    AddPicture(page, {"txtPicture", "PictureSource", "PictureWidth", "PictureHeight"},
               {.Label = u"P&icture:",
                .Tip = u"The picture on which somebody thinks",
                .Button = "cmdBrowseForImage",
                .Caption = u"&Browse for image..."});
    page.TextBox("txtDescription", u"D&escription:",
                 u"What the picture shows, such as \"our dog\"");
    page.Fill();
}

void ThoughtBubblesForm::AddWordsPage()
{
    PageBuilder page =
        AddPage({heading,
                 u"Enter what is thought.  Then click on who thinks it: that moves spot 1, "
                 u"or spot 2 while the cursor is in a field of the second bubble.",
                 "txtBubble"});
    m_places = new PlacePicture(room);
    page.Fill(m_places);
    const auto addPlace = [&page](ControlName x, TextView left, ControlName y, TextView above) {
        page.NumberBox(x, left, u"How far the spot is from the left edge of the picture",
                       u"percent of the picture");
        page.NumberBox(y, above, u"How far the spot is from the upper edge of the picture",
                       u"percent of the picture");
    };
    const int threeLines = 4 * fontMetrics().lineSpacing();
    page.MultiLineBox("txtBubble", u"&Bubble:", u"What is thought")->setFixedHeight(threeLines);
    addPlace("txtPlaceX", u"Spot 1 from the &left:", "txtPlaceY", u"Spot 1 from &above:");
    page.MultiLineBox("txtSecondBubble", u"&Second bubble:", u"Empty for none")
        ->setFixedHeight(threeLines);
    addPlace("txtSecondPlaceX", u"Spot 2 from the l&eft:", "txtSecondPlaceY",
             u"Spot 2 from ab&ove:");
    connect(m_places, &PlacePicture::Pointed, this, &ThoughtBubblesForm::TakePlace);
}

void ThoughtBubblesForm::AddLookPage()
{
    PageBuilder page = AddPage({heading, u"Choose when the bubbles are shown, and what they look "
                                         u"like."});
    page.ChoiceBox("cboShow", u"&Show a bubble:", shows);
    page.ChoiceBox("cboTail", u"Its &tail is:", tails);
    page.NumberBox("txtWidth", u"&Width:", {}, u"pixels");
    AddTextLook(page);
    AddPageColor(page, "cmdPaperColor", u"&Background color:");
    page.Fill();
}

void ThoughtBubblesForm::TakePlace(QPoint place)
{
    const QWidget* focus = focusWidget();
    const bool isSecond =
        focus != nullptr && focus->objectName().contains(QStringLiteral("Second"));
    ThoughtBubbles bubbles = Parameters();
    (isSecond ? bubbles.txtSecondPlaceX : bubbles.txtPlaceX) = NumberToText(place.x());
    (isSecond ? bubbles.txtSecondPlaceY : bubbles.txtPlaceY) = NumberToText(place.y());
    SetParameters(bubbles);
}

void ThoughtBubblesForm::UpdateForm()
{
    const ThoughtBubbles bubbles = Parameters();
    if (m_shown != bubbles.Picture.Source)
        m_places->Load(m_shown = bubbles.Picture.Source);
    std::vector<QPoint> places = {PlaceOf(bubbles.txtPlaceX, bubbles.txtPlaceY)};
    if (!bubbles.txtSecondBubble.empty())
        places.push_back(PlaceOf(bubbles.txtSecondPlaceX, bubbles.txtSecondPlaceY));
    m_places->SetPlaces(std::move(places));
}

} // namespace orvane
