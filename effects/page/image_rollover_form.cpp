#include "effects/page/image_rollover_form.h"

#include "core/percents.h"
#include "windows/block_rows.h"
#include "windows/file_rows.h"
#include "windows/row_form.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Image Rollover";

void AddTriggerFields(PageBuilder& page)
{
    page.TextBox("txtWords", u"&Text:", u"What stands on the page; of a picture, its description");
    AddPicture(page, {"txtPicture", "PictureSource", "PictureWidth", "PictureHeight"},
               {.Label = u"&Picture:",
                .Tip = u"The picture that is shown while the mouse is on the text",
                .Button = "cmdBrowseForImage",
                .Caption = u"Browse for image..."});
    page.TextBox("txtDescription", u"&Description:",
                 u"What the picture shows, for those who do not see it");
    AddLink(page, u"The address that a click leads to; empty for no link");
    AddPicture(page, {"txtTrigger", "TriggerSource", "TriggerWidth", "TriggerHeight"},
               {.Label = u"&In place of the text:",
                .Tip = u"A picture that stands on the page instead; Delete takes it away",
                .Button = "cmdBrowseForTrigger",
                .Caption = u"Browse for image..."})
        ->LetBeEmptied();
}

constexpr RowLook triggerWindow{.Name = "frmTrigger",
                                .Title = u"Text and the picture that it shows",
                                .Kind = EffectKind::ImageRollover,
                                .Letters = 70,
                                .AddFields = &AddTriggerFields};

} // namespace

ImageRolloverForm::ImageRolloverForm(Workbench& bench, QWidget* parent)
    : EffectForm("ImgRollover", bench, parent)
{
    PageBuilder triggers =
        AddPage({heading, u"Enter the texts or small pictures over which the mouse moves, and the "
                          u"picture that each of them shows."});
    AddRowList<RolloverRow>(triggers,
                            {{"lstTriggers", u"Texts:"},
                             {"lstPictures", u"Picture:", &WithoutPercents},
                             {"lstDescriptions", u"Description:"},
                             {"lstLinks", u"Link to this URL:"}},
                            triggerWindow, bench);

    PageBuilder stage = AddPage({heading, u"Choose how the picture changes."});
    stage.NumberBox("txtFirst", u"&First picture:", u"The number of the picture shown at first",
                    u"of the list; 0 is none");
    stage.NumberBox("txtFadeMilliseconds", u"F&ade for:", {}, u"milliseconds");
    stage.CheckBox("chkKeepLast", u"&Keep the last picture when the mouse goes away");
    stage.NumberBox("txtWidth", u"&Width:", u"0 is as wide as the pictures", u"pixels");
    AddTarget(stage);
    stage.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
