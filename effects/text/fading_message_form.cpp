#include "effects/text/fading_message_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Fading Message";

constexpr ChoiceItem orders[] = {{u"forward", u"As in the list"},
                                 {u"random", u"Random, each once in a round"}};

} // namespace

FadingMessageForm::FadingMessageForm(Workbench& bench, QWidget* parent)
    : EffectForm("FadeMsg", bench, parent)
{
    PageBuilder messages =
        AddPage({heading, u"Enter the messages in the order in which they are shown.  Each one can "
                          u"lead to a Web page."});
    AddMessageList(messages, EffectKind::FadingMessage, MessageText::Lines, bench);

    PageBuilder time = AddPage({heading, u"Choose how long each message is shown, and how often."});
    time.NumberBox("txtSeconds", u"&Show each message for:", {}, u"seconds");
    time.NumberBox("txtFadeSeconds", u"&Fade in or out for:", {}, u"seconds");
    time.ChoiceBox("cboOrder", u"&Order:", orders);
    AddTimes(time);
    time.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the messages look like."});
    AddTextLook(look);
    AddAlignment(look);
    AddWidth(look);
    AddTarget(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
