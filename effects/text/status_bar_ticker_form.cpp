#include "effects/text/status_bar_ticker_form.h"

#include "windows/qt_text.h"

namespace orvane {

StatusBarTickerForm::StatusBarTickerForm(Workbench& bench, QWidget* parent)
    : WizardForm(QStringLiteral("StatusBar"), EffectKind::StatusBarTicker, bench, parent)
{
    SetHeading(u"Status Bar Scrolling Text",
               u"Create text that scrolls in the status bar of your Web browser.");
    PageBuilder page = AddPage();
    txtStatusBarText =
        page.TextBox(QStringLiteral("txtStatusBarText"), u"Status bar scrolling text:",
                     u"This is the text that will be scrolled in the browser's status bar");
    page.Frame(u"Example").Picture(QStringLiteral("status_bar_sample"), {320, 90});
    page.Fill();
    AddButtons(Buttons::OnePage);
    setMinimumSize(FromTwips(6840, 5220));
    SetParameters({});
}

StatusBarTicker StatusBarTickerForm::Parameters() const
{
    return {.txtStatusBarText = FromQt(txtStatusBarText->text())};
}

void StatusBarTickerForm::SetParameters(const StatusBarTicker& ticker)
{
    txtStatusBarText->setText(ToQt(ticker.txtStatusBarText));
}

void StatusBarTickerForm::EditApplet()
{
    SetParameters(ReadStatusBarTicker(m_bench.Core.PastedApplet));
    m_bench.Core.EditMode = false;
}

void StatusBarTickerForm::Next()
{
    const StatusBarTicker ticker = Parameters();
    if (const auto complaint = Check(ticker))
        return Report(*complaint);
    Deliver(Generate(ticker));
}

} // namespace orvane
