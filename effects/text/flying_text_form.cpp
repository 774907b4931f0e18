#include "effects/text/flying_text_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Flying Text";

constexpr ChoiceItem sides[] = {{u"left", u"The left"},
                                {u"right", u"The right"},
                                {u"above", u"Above"},
                                {u"below", u"Below"},
                                {u"all", u"All sides"}};

constexpr ChoiceItem paths[] = {
    {u"straight", u"Straight"}, {u"arc", u"In an arc"}, {u"spiral", u"In a spiral"}};

} // namespace

FlyingTextForm::FlyingTextForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmFlyingText", bench, parent)
{
    PageBuilder flight = AddPage({heading, u"Enter the text, and choose how its letters fly onto "
                                           u"your Web page."});
    flight.MultiLineBox("txtText", u"&Text:", u"The text that flies onto the Web page");
    flight.ChoiceBox("cboFrom", u"Letters come &from:", sides);
    flight.ChoiceBox("cboPath", u"Their &way:", paths);
    flight.NumberBox("txtLetterPause", u"Pause &between letters:", {}, u"milliseconds");
    flight.NumberBox("txtFlightSeconds", u"&Each letter flies for:", {}, u"seconds");
    flight.NumberBox("txtAgainAfter", u"Fly &again after:", {}, u"seconds; 0 is never");

    PageBuilder look = AddPage({heading, u"Choose what the text looks like."});
    AddTextLook(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
