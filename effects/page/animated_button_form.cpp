#include "effects/page/animated_button_form.h"

#include "windows/block_rows.h"
#include "windows/file_rows.h"
#include "windows/picture_list_panel.h"

namespace orvane {

AnimatedButtonForm::AnimatedButtonForm(Workbench& bench, QWidget* parent)
    : EffectForm("AnimButton", bench, parent)
{
    PageBuilder rest = AddPage(
        {u"Pictures at rest", u"Add the picture of the button, or several that follow each other.",
         "cmdAddPictures"});
    rest.Fill(new PictureListPanel(EffectKind::AnimatedButton, PictureWords::None, bench));
    rest.TextBox("txtDescription", u"&Description:",
                 u"Where the button leads, for those who do not see it");

    PageBuilder over = AddPage({u"Pictures under the mouse",
                                u"Add what is shown while the mouse is over the button.  Without "
                                u"pictures here it stays as it is at rest."});
    over.Fill(new PictureListPanel(EffectKind::AnimatedButton, PictureWords::None, bench,
                                   "lstOverPictures"));

    PageBuilder pressed =
        AddPage({u"Pictures of a press", u"Add what is shown while the button is pressed.  Without "
                                         u"pictures here it stays as it is under the mouse."});
    pressed.Fill(new PictureListPanel(EffectKind::AnimatedButton, PictureWords::None, bench,
                                      "lstPressedPictures"));

    PageBuilder button = AddPage(
        {u"What the button does", u"Say where it leads, and how fast its pictures change."});
    button.NumberBox("txtMilliseconds", u"Each picture is sho&wn for:", {}, u"milliseconds");
    AddLink(button, u"The address that a click on the button leads to");
    AddTarget(button);
    button.NumberBox("txtWidth", u"W&idth:", u"0 is as wide as the pictures", u"pixels");
    AddSound(button, "txtPressSound", "PressSoundSource",
             {.Label = u"&Sound of a press:",
              .Tip = u"The sound that a click plays; Delete takes it away",
              .Button = "cmdBrowseForSound",
              .Caption = u"Browse for sound..."});
    button.CheckBox("chkOnFocus", u"The &keyboard moves it as the mouse does");
    button.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
