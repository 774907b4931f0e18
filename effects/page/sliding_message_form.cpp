#include "effects/page/sliding_message_form.h"

#include "windows/block_rows.h"
#include "windows/file_rows.h"
#include "windows/multi_line_box.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Sliding Instant Message Window";

constexpr ChoiceItem corners[] = {{u"bottom-right", u"At the lower right"},
                                  {u"bottom-left", u"At the lower left"},
                                  {u"top-right", u"At the upper right"},
                                  {u"top-left", u"At the upper left"}};

constexpr ChoiceItem howOften[] = {{u"load", u"Each time the page is loaded"},
                                   {u"session", u"Once until the browser is closed"},
                                   {u"day", u"Once a day"}};

} // namespace

SlidingMessageForm::SlidingMessageForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmSlidingIMWindow", bench, parent)
{
    PageBuilder words =
        AddPage({heading, u"Enter the message, and the Web page that it leads to."});
    words.TextBox("txtTitle", u"&Title:", u"The words at the top of the window");
    words.MultiLineBox("txtMessage", u"&Message:", u"The message, of one or more lines");
    AddLink(words, u"The address that a click on the message leads to; empty for no link");
    AddTarget(words);

    PageBuilder time = AddPage({heading, u"Choose where and when it comes.  What a visitor has "
                                         u"seen is kept in the visitor's own browser; nothing is "
                                         u"sent anywhere."});
    time.ChoiceBox("cboCorner", u"Co&rner:", corners);
    time.NumberBox("txtWaitSeconds", u"It comes &after:", {}, u"seconds");
    time.NumberBox("txtStaySeconds", u"It &stays for:", {}, u"seconds; 0 is until it is closed");
    time.ChoiceBox("cboOnce", u"&How often:", howOften);
    AddSound(
        time, "txtSound", "SoundSource",
        {.Label = u"S&ound:",
         .Tip = u"The sound with which it comes, where the browser lets it; Delete takes it away",
         .Button = "cmdBrowseForSound",
         .Caption = u"Browse for sound..."});
    time.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the window looks like."});
    look.NumberBox("txtWidth", u"&Width:", {}, u"pixels");
    look.ColorSwatch("cmdHeadColor", u"&Head color:");
    AddPageColor(look, "cmdHeadTextColor", u"H&ead text color:");
    look.ColorSwatch("cmdPaperColor", u"Pape&r color:");
    AddTextLook(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
