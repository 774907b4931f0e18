#include "effects/text/digital_clock_form.h"

#include "core/numbers.h"
#include "windows/qt_text.h"

#include <QCheckBox>

#include <algorithm>

namespace orvane {

DigitalClockForm::DigitalClockForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmDateTime", bench, parent)
{
    AddContentPage();
    AddDatePage();
    AddTimePage();
    AddPropertiesPage();
    AddButtons(Buttons::Paged, "cmdHelp");
    resize(size().expandedTo(FromTwips(6420, 5625)));
    ChangePage(m_position.CurrentPage);
}

void DigitalClockForm::AddContentPage()
{
    PageBuilder page =
        AddPage({u": Select Date and/or Time",
                 u"From the choices below, select the item you wish to be displayed on your Web "
                 u"page: date only, time only or both."});
    page.Option("optDateTime", 0, u"Show the Date",
                u"Display the date on your Web page in a format like: \"Monday, April 3, 2001\"",
                QStringLiteral("sample_date"));
    page.Option("optDateTime", 1, u"Show the Time",
                u"Display the time on your Web page in a format like: \"12:31 pm\"",
                QStringLiteral("sample_time"));
    page.Option("optDateTime", 2, u"Show both the Date and Time",
                u"Display both the date and time on your Web page in a format like: "
                u"\"Monday, April 3, 2001  12:31 pm\"",
                QStringLiteral("sample_date_time"));
    page.Fill();
}

void DigitalClockForm::AddDatePage()
{
    PageBuilder page =
        AddPage({u": Set Date format",
                 u"Select the date format you wish to be displayed on your Web page."});
    std::array<TextView, dateFormats.size()> items;
    std::ranges::transform(dateFormats, items.begin(), &DateFormat::Item);
    page.ListBox("lstDateTimeFormat", u"Date Format", items);
    page.CheckBox("chkDayOfWeek", u"Show the day of the week (Monday, Tuesday, etc.)");
}

void DigitalClockForm::AddTimePage()
{
    PageBuilder page =
        AddPage({u": Set Time format",
                 u"Set the format you wish the time to be displayed on your Web page."});
    PageBuilder frame = page.Frame(u"Time Format");
    frame.CheckBox("chkShowTimeBeforeDate", u"Show Time before Date");
    frame.CheckBox("chkMilitaryTime", u"24 hour clock (military time)");
    frame.CheckBox("chkShowSeconds", u"Show seconds");
    frame.CheckBox("chkShowAMPM", u"Show AM/PM");
    page.Fill();
}

void DigitalClockForm::AddPropertiesPage()
{
    PageBuilder page =
        AddPage({u": Set clock properties",
                 u"Set the font and background properties of your date/time special effect."});
    PageBuilder frame = page.Frame(u"Clock properties");
    frame.FontRow("cmdMoreFonts", {});
    frame.NumberBox("txtPadding", u"Padding:", 0, 50);
    frame.ColorSwatch("lblBGColor", u"Background color:");
    frame.ColorSwatch("lblFontColor", u"Font color:");
    page.Fill();
}

void DigitalClockForm::Next()
{
    m_position = NextPage(Parameters(), m_position);
    ChangePage(m_position.CurrentPage);
}

void DigitalClockForm::Previous()
{
    m_position = PreviousPage(Parameters(), m_position);
    ChangePage(m_position.CurrentPage);
}

void DigitalClockForm::ChangePage(int page)
{
    const DigitalClock clock = Parameters();
    if (page == 5) {
        // Stays as it is: the step is left one above the one on screen.
        m_position.CurrentPage = 4;
        return Finish(clock);
    }
    if (page < 1 || page > 4)
        return;
    if (const auto complaint = Check(clock); complaint && page > 2) {
        m_position.CurrentPage = 2;
        --m_position.CurrentStep;
        return ShowComplaint(*complaint);
    }
    GoTo(page - 1);
    const WizardPage& words = WordsOf(page - 1);
    SetHeading(
        Join({u"Digital Clock - Step ", NumberToText(m_position.CurrentStep), words.Heading}),
        words.SubHeading);
}

} // namespace orvane
