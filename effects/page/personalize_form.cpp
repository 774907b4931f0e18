#include "effects/page/personalize_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Personalize your Web page";

constexpr ChoiceItem asks[] = {{u"line", u"By a line on the Web page"},
                               {u"button", u"By a button that shows the line"},
                               {u"no", u"Not at all"}};

constexpr ChoiceItem dateStyles[] = {{u"full", u"Sunday, November 22, 2026"},
                                     {u"long", u"November 22, 2026"},
                                     {u"medium", u"Nov 22, 2026"},
                                     {u"short", u"11/22/26"}};

} // namespace

PersonalizeForm::PersonalizeForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmPersonalize", bench, parent)
{
    PageBuilder greeting = AddPage(
        {heading, u"Your Web page asks visitors for their names once, and greets them.  "
                  u"The name stays in the visitor's own browser; nothing is sent anywhere."});
    greeting.TextBox("txtQuestion", u"&Question:", u"The words beside the box for the name");
    greeting.TextBox("txtGreeting", u"&Greeting:", u"«name» stands for the name of the visitor");
    greeting.MultiLineBox("txtNamelessGreeting", u"Greeting &without a name:",
                          u"For visitors who have not told their name; an empty line parts two "
                          u"paragraphs");
    greeting.ChoiceBox("cboAsk", u"&Ask visitors:", asks);
    greeting.CheckBox("chkNotMe", u"Visitors can &take their name back");
    greeting.NumberBox("txtForgetAfter", u"&Forget the name after:", {}, u"days without a visit");
    greeting.Fill();

    PageBuilder look = AddPage({heading, u"Choose what else is shown, and what it looks like."});
    look.CheckBox("chkVisits", u"Show how &many visits there were");
    look.CheckBox("chkLastVisit", u"Show when the &last visit was");
    look.ChoiceBox("cboDateStyle", u"&As:", dateStyles,
                   u"In the language of the Web page, or else of the visitor");
    AddTextLook(look);
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
