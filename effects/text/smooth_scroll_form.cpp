#include "effects/text/smooth_scroll_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Smooth Scrolling Text Ticker";

} // namespace

SmoothScrollForm::SmoothScrollForm(Workbench& bench, QWidget* parent)
    : EffectForm("SmoothScroll", bench, parent)
{
    PageBuilder messages =
        AddPage({heading, u"Enter the messages in the order in which they come by.  Each one can "
                          u"lead to a Web page."});
    AddMessageList(messages, EffectKind::SmoothScroll, MessageText::OneLine, bench);

    PageBuilder movement = AddPage({heading, u"Choose how the messages move, and how much room "
                                             u"they have."});
    AddDirection(movement);
    movement.Slider("sldrSpeed", u"&Speed:", u"Slow", u"Fast", {});
    movement.NumberBox("txtGap", u"&Gap behind each message:", {}, u"pixels");
    AddWidth(movement);
    movement.NumberBox("txtHeight", u"&Height:", {}, u"pixels; 0 is as high as the text");
    movement.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the messages look like."});
    AddTextLook(look);
    AddPageColor(look, "cmdBackColor", u"&Background color:");
    look.CheckBox("chkFadedEdges", u"Messages fade in and out at both &edges");
    look.CheckBox("chkPauseOnHover", u"&Stop while the mouse is over a message");
    AddTarget(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
