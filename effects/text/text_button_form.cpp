#include "effects/text/text_button_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Text Button";

} // namespace

TextButtonForm::TextButtonForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmTextButton", bench, parent)
{
    PageBuilder text = AddPage({heading, u"Enter the text of the button, another one for the mouse "
                                         u"if you like, and the page that it leads to."});
    text.TextBox("txtCaption", u"&Text:", u"The text of the button");
    text.TextBox("txtHoverText", u"Text under the &mouse:",
                 u"The text while the mouse is over the button; empty: the same");
    AddLink(text, u"The address that the button leads to");
    AddTarget(text);
    text.Fill();

    PageBuilder colors = AddPage({heading, u"Choose the colors of the button."});
    AddPageColor(colors, "cmdTextColor", u"&Text color:");
    AddPageColor(colors, "cmdBackColor", u"&Background color:");
    AddPageColor(colors, "cmdHoverTextColor", u"Text c&olor under the mouse:");
    AddPageColor(colors, "cmdHoverBackColor", u"Back&ground color under the mouse:");
    colors.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the button looks like."});
    AddFont(look);
    look.NumberBox("txtCorners", u"&Round the corners by:", {}, u"pixels");
    look.NumberBox("txtBorder", u"&Border:", {}, u"pixels");
    look.CheckBox("chkShadow", u"It throws a &shadow");
    AddWidth(look, u"pixels; 0 is as wide as its text");
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
