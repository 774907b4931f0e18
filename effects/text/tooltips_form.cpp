#include "effects/text/tooltips_form.h"

#include "services/file_requests.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Tooltip";
constexpr TextView subHeading =
    u"Show tooltips for your Web page!  Tooltips pop up when you move your mouse over an image or "
    u"text!";

constexpr TextView alignments[] = {u"Left", u"Right", u"Center"};

} // namespace

TooltipsForm::TooltipsForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmTooltip", bench, parent)
{
    AddTextPage();
    AddBoxPage();
    AddHoverPage();
    AddButtons(Buttons::Paged);
}

void TooltipsForm::AddTextPage()
{
    PageBuilder page = AddPage({heading, subHeading});
    page.TextBox("txtTooltipText", u"Tooltip text:",
                 u"This is the text to be displayed in the tooltip");
    page.FontRow("cmdMore");
    page.ColorSwatch("TextColor", u"Text color:", ColorNotation::RgbFunction, u"Select Color");
    page.ColorSwatch("BGColor", u"Background color:", ColorNotation::RgbFunction, u"Select Color");
    page.Fill();
}

void TooltipsForm::AddBoxPage()
{
    PageBuilder page = AddPage({heading, subHeading, "txtWidth"});
    page.Narrow(page.TextBox("txtWidth", u"Width:",
                             u"This is the width of the tooltip, specified in pixels"));
    page.Narrow(page.TextBox("txtHeight", u"Height:",
                             u"This is the height of the tooltip, specified in pixels"));
    page.CheckBox("chk3D", u"Raised border (3D)",
                  u"This draws a thick border at the right and at the bottom of the tooltip");
    page.ComboBox("cboDisplayLocation", u"Display the Tooltip:", tooltipLocations, false,
                  u"This is the side of the mousepointer on which the tooltip is displayed");
    page.TextBox("txtTitleText", u"Title Text:",
                 u"This is the title to be displayed at the top of the tooltip", u"(optional)");
    page.ComboBox("cboTitleAlign", u"Align Title:", alignments, false);
    page.Fill();
}

void TooltipsForm::AddHoverPage()
{
    PageBuilder page = AddPage({heading, subHeading});
    page.Note(u"Display the tooltip when the mouse hovers over:");
    page.OptionGroup("optHoverObject", {u"Text", u"An Image"});
    page.TextBox("txtMainText", u"Text:",
                 u"This is the text on your Web page that the tooltip belongs to");
    page.LockedBrowseRow("txtImage", u"Image name:",
                         u"This is the image on your Web page that the tooltip belongs to",
                         {.Button = "cmdBrowseForImage",
                          .Caption = u"Browse for image...",
                          .Request = {.Title = u"Browse",
                                      .Filter = Text(imageFilter),
                                      .Purpose = FolderPurpose::Images},
                          .KeepsPath = true});
    page.Fill();
}

} // namespace orvane
