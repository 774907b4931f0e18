#include "effects/text/flash_text_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr ControlName name = "frmFlashText";
constexpr TextView flashing = u"Flashing Text";
constexpr TextView shaking = u"Shaking Text";
constexpr TextView looks = u"Choose what the text looks like.";

constexpr ChoiceItem ways[] = {
    {u"sideways", u"Sideways"}, {u"up", u"Up and down"}, {u"turning", u"Turning"}};

} // namespace

FlashingTextForm::FlashingTextForm(Workbench& bench, QWidget* parent)
    : EffectForm(name, bench, parent)
{
    PageBuilder flash =
        AddPage({flashing, u"Enter the text, and choose two pairs of colors between which it "
                           u"changes.  More than three flashes a second can harm those who look "
                           u"at them."});
    flash.MultiLineBox("txtText", u"&Text:", u"The text that flashes");
    AddPageColor(flash, "cmdTextColor", u"Te&xt color:");
    AddPageColor(flash, "cmdBackColor", u"&Background color:");
    AddPageColor(flash, "cmdSecondTextColor", u"S&econd text color:");
    AddPageColor(flash, "cmdSecondBackColor", u"Second b&ackground color:");
    flash.NumberBox("txtTimesPerSecond", u"&Flashes a second:");
    flash.NumberBox("txtSeconds", u"&Stop after:", u"0: it flashes for ever",
                    u"seconds; 0 is never");
    flash.CheckBox("chkOnHover", u"&Only while the mouse is over it");
    flash.Fill();

    PageBuilder look = AddPage({flashing, looks});
    AddFont(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 7200)));
}

ShakingTextForm::ShakingTextForm(Workbench& bench, QWidget* parent)
    : EffectForm(name, bench, parent)
{
    PageBuilder shake =
        AddPage({shaking, u"Enter the text, and choose how it shakes.  Visitors read "
                          u"best what rests most of the time."});
    shake.MultiLineBox("txtText", u"&Text:", u"The text that shakes");
    shake.ChoiceBox("cboWay", u"It &shakes:", ways);
    shake.NumberBox("txtPixels", u"To each s&ide by:", {}, u"pixels, or degrees when it turns");
    shake.NumberBox("txtBurstSeconds", u"Sha&ke for:", {}, u"seconds");
    shake.NumberBox("txtPauseSeconds", u"Then &rest for:", {}, u"seconds");
    AddTimes(shake);
    shake.CheckBox("chkOnHover", u"&Only when the mouse comes over it");
    shake.Fill();

    PageBuilder look = AddPage({shaking, looks});
    AddTextLook(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
