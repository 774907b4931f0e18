#include "effects/page/sound_effect_form.h"

#include "windows/block_rows.h"
#include "windows/file_rows.h"

namespace orvane {

namespace {

constexpr ChoiceItem ifBlocked[] = {{u"button", u"When the visitor presses its button"},
                                    {u"click", u"At the visitor's first click or key"}};

} // namespace

SoundEffectForm::SoundEffectForm(Workbench& bench, QWidget* parent)
    : EffectForm("Sound", bench, parent)
{
    PageBuilder page = AddPage(
        {u"Sound Effect",
         u"Choose a sound for the visitor's arrival, one for leaving the page by a link, or "
         u"both.  Most browsers wait with a sound until the visitor has clicked something.  "
         u"Visitors can always stop it and set its volume."});
    AddSound(page, "txtSound", "SoundSource",
             {.Label = u"On &arrival:",
              .Tip = u"The sound of the page; Delete takes it away",
              .Button = "cmdBrowseForSound",
              .Caption = u"Browse for sound..."});
    AddSound(page, "txtLeavingSound", "LeavingSoundSource",
             {.Label = u"On &leaving:",
              .Tip = u"A short sound for the way to another page; Delete takes it away",
              .Button = "cmdBrowseForLeavingSound",
              .Caption = u"Browse for sound..."});
    page.Slider("sldrVolume", u"V&olume:", u"Silent", u"Loud", {});
    AddTimes(page);
    page.CheckBox("chkControls", u"&Show the browser's player; else a button and a volume");
    page.ChoiceBox("cboIfBlocked", u"&Where it has to wait:", ifBlocked);
    page.CheckBox("chkRememberOff", u"&Remember in the visitor's own browser who stopped it");
    page.Fill();

    AddButtons(Buttons::OnePage);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
