#include "effects/page/image_scroller_form.h"

#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"

namespace orvane {

ImageScrollerForm::ImageScrollerForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmImageScroller", bench, parent)
{
    PageBuilder pictures =
        AddPage({u"Pictures of the film",
                 u"Add the pictures in the order in which they pass.  Edit a picture to give it a "
                 u"description and the Web page that it leads to.",
                 "cmdAddPictures"});
    pictures.Fill(new PictureListPanel(EffectKind::ImageScroller, PictureWords::Own, bench));

    PageBuilder film = AddPage({u"How the film runs", u"All pictures get one height.  Visitors can "
                                                      u"stop the film by a button."});
    film.NumberBox("txtHeight", u"&Height:", u"The height of all pictures", u"pixels");
    film.NumberBox("txtGap", u"&Gap between pictures:", {}, u"pixels");
    film.Slider("sldrSpeed", u"&Speed:", u"Slow", u"Fast", {});
    AddDirection(film, u"Di&rection:");
    film.CheckBox("chkFilmLook", u"&Look like a film, with holes at its edges");
    film.CheckBox("chkPauseOnHover", u"Stop while the &mouse is over a picture");
    AddTarget(film);
    film.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
