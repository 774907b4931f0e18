#include "effects/text/status_bar_ticker_form.h"

namespace orvane {

StatusBarTickerForm::StatusBarTickerForm(Workbench& bench, QWidget* parent)
    : EffectForm("StatusBar", bench, parent)
{
    PageBuilder page =
        AddPage({u"Status Bar Scrolling Text",
                 u"Create text that scrolls in the status bar of your Web browser."});
    page.TextBox("txtStatusBarText", u"Status bar scrolling text:",
                 u"This is the text that will be scrolled in the browser's status bar");
    page.Example(QStringLiteral("status_bar_sample"), {320, 90});
    page.Fill();
    AddButtons(Buttons::OnePage);
    resize(size().expandedTo(FromTwips(6840, 5220)));
}

} // namespace orvane
