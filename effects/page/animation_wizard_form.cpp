#include "effects/page/animation_wizard_form.h"

#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"

namespace orvane {

namespace {

constexpr ChoiceItem orders[] = {{u"forward", u"One after the other"},
                                 {u"back", u"There and back"},
                                 {u"random", u"In random order"}};
constexpr ChoiceItem starts[] = {{u"seen", u"When it is seen"},
                                 {u"click", u"When the visitor clicks"}};

} // namespace

AnimationWizardForm::AnimationWizardForm(Workbench& bench, QWidget* parent)
    : EffectForm("AnimWizard", bench, parent)
{
    PageBuilder pictures =
        AddPage({u"Pictures of the animation",
                 u"Add the pictures in the order in which they are shown.  Pictures of one size "
                 u"look best.",
                 "cmdAddPictures"});
    pictures.Fill(new PictureListPanel(EffectKind::AnimationWizard, PictureWords::None, bench));
    pictures.TextBox("txtDescription", u"&Description:",
                     u"What the animation shows, for those who do not see it");
    PageBuilder movement = AddPage(
        {u"How it moves", u"Say how the pictures follow each other, and where a click leads to."});
    movement.NumberBox("txtMilliseconds", u"Each picture is sho&wn for:",
                       u"The time from one picture to the next; 1000 milliseconds are a second",
                       u"milliseconds");
    AddTimes(movement);
    movement.ChoiceBox("cboOrder", u"O&rder:", orders);
    AddChange(movement, "cboChange", u"Chan&ge:", u"How a picture gives way to the next");
    movement.ChoiceBox("cboStart", u"&Starts:", starts);
    movement.NumberBox("txtWidth", u"W&idth:", u"0 is as wide as the pictures", u"pixels");
    AddLink(movement, u"The address that a click on the animation leads to; empty for no link");
    AddTarget(movement);
    movement.Fill();
    AddButtons(Buttons::Paged);
}

} // namespace orvane
