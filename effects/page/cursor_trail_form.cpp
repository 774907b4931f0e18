#include "effects/page/cursor_trail_form.h"

#include "services/file_requests.h"

namespace orvane {

CursorTrailForm::CursorTrailForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmCursorTrail", bench, parent)
{
    PageBuilder page = AddPage({u"Mouse Cursor Trail",
                                u"Create a trail of images that follows your mouse cursor wherever "
                                u"it moves on your Web page!"});
    page.LockedBrowseRow("txtImage", u"Image name:", {},
                         {.Button = "cmdBrowseForImage",
                          .Caption = u"Browse for image...",
                          .Request = {.Title = u"Browse",
                                      .Filter = Text(imageFilter),
                                      .Purpose = FolderPurpose::Images},
                          .KeepsPath = true});
    page.Slider("Slider", u"Length of Trail:", u"Short", u"Long",
                {.Lowest = 1, .Highest = 20, .Tick = 1});
    page.Fill();
    AddButtons(Buttons::OnePage);
}

} // namespace orvane
