#include "effects/page/background_fade_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr ChoiceItem times[] = {{u"arrival", u"When the visitor comes"},
                                {u"leaving", u"When the visitor leaves by a link"},
                                {u"both", u"Both times"}};

} // namespace

BackgroundFadeForm::BackgroundFadeForm(Workbench& bench, QWidget* parent)
    : EffectForm("Fade", bench, parent)
{
    PageBuilder page = AddPage({u"Background Color Fading",
                                u"Choose the colors between which the background of the Web page "
                                u"fades.  The text must be easy to read on both."});
    page.ColorSwatch("cmdFirstColor", u"&First color:");
    page.ColorSwatch("cmdLastColor", u"&Last color:");
    page.NumberBox("txtSeconds", u"It &takes:", {}, u"seconds");
    page.ChoiceBox("cboWhen", u"&When:", times);
    page.CheckBox("chkAndBack", u"And &back to the first color");
    AddPageColor(page, "cmdTextColor", u"Te&xt of the page:");
    page.Fill();

    AddButtons(Buttons::OnePage);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
