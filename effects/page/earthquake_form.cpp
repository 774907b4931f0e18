#include "effects/page/earthquake_form.h"

#include "windows/page_builder.h"

namespace orvane {

namespace {

constexpr ChoiceItem times[] = {{u"arrival", u"When the visitor comes"},
                                {u"click", u"When the visitor clicks a link"},
                                {u"both", u"Both times"}};

} // namespace

EarthquakeForm::EarthquakeForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmEarthquake", bench, parent)
{
    PageBuilder page =
        AddPage({u"Browser Window Earthquake",
                 u"Choose how the Web page shakes.  A short quake is seen as well as a long one, "
                 u"and whoever has asked the computer for less motion sees none."});
    page.NumberBox("txtPixels", u"&Strength:", u"How far it moves to each side", u"pixels");
    page.NumberBox("txtSeconds", u"It &lasts:", {}, u"seconds");
    page.ChoiceBox("cboWhen", u"&When:", times);
    page.NumberBox("txtAgainAfter", u"&Again after:", u"0: it comes once",
                   u"seconds, 5 at least; 0 is never");
    page.Fill();

    AddButtons(Buttons::OnePage);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
