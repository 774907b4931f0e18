#include "effects/text/navigator_ticker_form.h"

#include "windows/block_rows.h"
#include "windows/row_form.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Navigator Ticker";

void AddMessageFields(PageBuilder& page)
{
    page.TextBox("txtWords", u"&Text:", u"The text of this item");
    AddLink(page);
    AddPageColor(page, "cmdColor", u"Te&xt color:");
}

constexpr RowLook messageWindow{.Name = "frmMessage",
                                .Title = u"Message, its link and color",
                                .Kind = EffectKind::NavigatorTicker,
                                .Letters = 70,
                                .AddFields = &AddMessageFields};

} // namespace

NavigatorTickerForm::NavigatorTickerForm(Workbench& bench, QWidget* parent)
    : EffectForm("NavTicker", bench, parent)
{
    PageBuilder messages =
        AddPage({heading, u"Enter the messages in the order in which they run by.  Each one can "
                          u"lead to a Web page and have a color of its own."});
    AddRowList<ColoredRow>(messages,
                           {{"lstMessages", u"Messages:"},
                            {"lstLinks", u"Link to this URL:"},
                            {"lstColors", u"Color:"}},
                           messageWindow, bench);

    PageBuilder movement = AddPage({heading, u"Choose how the messages move."});
    AddDirection(movement);
    movement.Slider("sldrSpeed", u"&Speed:", u"Slow", u"Fast", {});
    movement.Narrow(movement.TextBox("txtSeparator", u"S&ign between messages:",
                                     u"What stands between two messages"));
    AddWidth(movement);
    movement.CheckBox("chkPauseOnHover", u"S&top while the mouse is over a message");
    AddTarget(movement);
    movement.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the ticker looks like."});
    AddTextLook(look);
    AddPageColor(look, "cmdBackColor", u"&Background color:");
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
