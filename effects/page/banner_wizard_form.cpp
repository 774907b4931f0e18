#include "effects/page/banner_wizard_form.h"

#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"

namespace orvane {

BannerWizardForm::BannerWizardForm(Workbench& bench, QWidget* parent)
    : EffectForm("BBWizard", bench, parent)
{
    PageBuilder pictures =
        AddPage({u"Banners",
                 u"Add the pictures in the order in which they are shown.  Edit a picture to give "
                 u"it a description and the Web page that it leads to.",
                 "cmdAddPictures"});
    pictures.Fill(new PictureListPanel(EffectKind::BannerWizard, PictureWords::Own, bench));

    PageBuilder change =
        AddPage({u"How they change", u"Give visitors time to read.  Each of them finds a button "
                                     u"that stops the banners."});
    change.NumberBox("txtSeconds", u"&Show each one for:", {}, u"seconds");
    AddChange(change, "cboTransition", u"&Transition:");
    change.NumberBox("txtDuration", u"A change ta&kes:", {}, u"seconds");
    change.CheckBox("chkRandomFirst", u"Begin with any &one of them");
    change.CheckBox("chkPauseOnHover", u"Stop while the &mouse is over it");
    change.CheckBox("chkArrows", u"&Buttons for the previous and the next one");
    change.Fill();

    PageBuilder room = AddPage({u"Size of the banners", u"Banners of one size look best."});
    AddPictureSize(room);
    AddTarget(room);
    room.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
