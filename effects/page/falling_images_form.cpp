#include "effects/page/falling_images_form.h"

#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"

namespace orvane {

namespace {

constexpr ChoiceItem directions[] = {{u"down", u"Fall"}, {u"up", u"Float up"}};
constexpr ChoiceItem places[] = {{u"front", u"In front of the text"},
                                 {u"behind", u"Behind the text"}};

} // namespace

FallingImagesForm::FallingImagesForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmFallingSnow", bench, parent)
{
    PageBuilder pictures =
        AddPage({u"Pictures that fall or float",
                 u"Add up to five small pictures, such as snowflakes, leaves or balloons.  They "
                 u"come in turn.",
                 "cmdAddPictures"});
    pictures.Fill(new PictureListPanel(EffectKind::FallingImages, PictureWords::None, bench));
    PageBuilder movement =
        AddPage({u"How they move", u"Few and slow pictures leave the text easy to read.  Visitors "
                                   u"can stop them by a button."});
    movement.NumberBox("txtNumber", u"Num&ber of pictures:", u"How many are in the air at a time");
    movement.ChoiceBox("cboDirection", u"They f&all or float:", directions);
    movement.Slider("sldrSpeed", u"&Speed:", u"Slow", u"Fast", {});
    movement.NumberBox("txtSway", u"S&way to each side:", {}, u"pixels");
    movement.NumberBox("txtSmallest", u"S&mallest width:", {}, u"pixels");
    movement.NumberBox("txtLargest", u"&Largest width:", {}, u"pixels");
    movement.CheckBox("chkTurning", u"They &turn as they move");
    movement.NumberBox("txtSeconds", u"End a&fter:", u"No new ones come then; 0 is never",
                       u"seconds");
    movement.ChoiceBox("cboPlace", u"Wh&ere they are:", places);
    movement.Fill();
    AddButtons(Buttons::Paged);
}

} // namespace orvane
