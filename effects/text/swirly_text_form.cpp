#include "effects/text/swirly_text_form.h"

#include "windows/block_rows.h"
#include "windows/color_list.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Swirly Text";

} // namespace

SwirlyTextForm::SwirlyTextForm(Workbench& bench, QWidget* parent)
    : EffectForm("Swirly", bench, parent)
{
    PageBuilder swirl = AddPage({heading, u"Enter the text, and choose from three to seven colors "
                                          u"that run through it."});
    swirl.MultiLineBox("txtText", u"&Text:", u"The text through which the colors run");
    swirl.Row(u"C&olors:", {new ColorList("lstColors", 7, bench)});
    swirl.NumberBox("txtSeconds", u"One round ta&kes:", {}, u"seconds");
    AddDirection(swirl);
    swirl.NumberBox("txtRounds", u"&Rounds:", {}, u"0 is for ever");
    swirl.CheckBox("chkLetters", u"&Letter by letter, each in one color");
    swirl.Note(u"Choose colors that can be read on the background of your Web page.");
    swirl.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the text looks like."});
    AddFont(look);
    AddAlignment(look, PageAlignment::Offered);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
