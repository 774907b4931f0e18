#include "effects/page/color_scrollbars_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr ChoiceItem thicknesses[] = {{u"auto", u"As usual"}, {u"thin", u"Thin"}};
constexpr ChoiceItem places[] = {{u"page", u"The page alone"},
                                 {u"all", u"The page and all boxes in it"}};

} // namespace

ColorScrollbarsForm::ColorScrollbarsForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmColorScrollbar", bench, parent)
{
    PageBuilder page =
        AddPage({u"Color Scrollbars",
                 u"Choose the colors of the scrollbars.  Scrollbars that appear during scrolling "
                 u"alone, as on phones, keep their own colors."});
    page.ColorSwatch("cmdHandleColor", u"&Handle:");
    page.ColorSwatch("cmdTrackColor", u"&Track:");
    page.ChoiceBox("cboThickness", u"Thic&kness:", thicknesses);
    page.ChoiceBox("cboWhere", u"&Where:", places);
    page.ColorSwatch("cmdHoverColor", u"Handle under the &mouse:", ColorNotation::Hash,
                     u"As the handle",
                     u"In older browsers alone: today's browsers shade the handle by themselves");
    page.Fill();
    AddButtons(Buttons::OnePage);
}

} // namespace orvane
