#include "effects/text/digital_clock_form.h"

#include "core/numbers.h"
#include "services/color.h"
#include "windows/color_swatch.h"
#include "windows/number_box.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

/// What stands above a page, and on its button to the next one.
struct PageWords
{
    TextView HeadingEnd;
    TextView SubHeading;
    TextView NextCaption;
};

constexpr std::array<PageWords, 4> pages = {{
    {u": Select Date and/or Time",
     u"From the choices below, select the item you wish to be displayed on your Web page: date "
     u"only, time only or both.",
     u"&Next >>"},
    {u": Set Date format", u"Select the date format you wish to be displayed on your Web page.",
     u"&Next >>"},
    {u": Set Time format", u"Set the format you wish the time to be displayed on your Web page.",
     u"&Next >>"},
    {u": Set clock properties",
     u"Set the font and background properties of your date/time special effect.", u"&Done"},
}};

std::optional<std::int32_t> ColorOnScreen(const Text& color)
{
    if (color.empty())
        return std::nullopt;
    return PackedColor(color);
}

} // namespace

DigitalClockForm::DigitalClockForm(Workbench& bench, QWidget* parent)
    : WizardForm(QStringLiteral("frmDateTime"), EffectKind::DigitalClock, bench, parent)
{
    BuildContentPage(AddPage());
    BuildDatePage(AddPage());
    BuildTimePage(AddPage());
    BuildPropertiesPage(AddPage());
    AddButtons(Buttons::Paged, QStringLiteral("cmdHelp"));
    setMinimumSize(FromTwips(6420, 5625));
    SetParameters({});
    ChangePage(m_position.CurrentPage);
}

void DigitalClockForm::BuildContentPage(PageBuilder page)
{
    const QString group = QStringLiteral("optDateTime");
    optDateTime = {
        page.Option(group, 0, u"Show the Date",
                    u"Display the date on your Web page in a format like: \"Monday, April 3, "
                    u"2001\"",
                    QStringLiteral("sample_date")),
        page.Option(group, 1, u"Show the Time",
                    u"Display the time on your Web page in a format like: \"12:31 pm\"",
                    QStringLiteral("sample_time")),
        page.Option(group, 2, u"Show both the Date and Time",
                    u"Display both the date and time on your Web page in a format like: "
                    u"\"Monday, April 3, 2001  12:31 pm\"",
                    QStringLiteral("sample_date_time"))};
    page.Fill();
}

void DigitalClockForm::BuildDatePage(PageBuilder page)
{
    std::array<TextView, DateFormats.size()> items;
    std::ranges::transform(DateFormats, items.begin(), &DateFormat::Item);
    lstDateTimeFormat = page.ListBox(QStringLiteral("lstDateTimeFormat"), u"Date Format", items);
    chkDayOfWeek = page.CheckBox(QStringLiteral("chkDayOfWeek"),
                                 u"Show the day of the week (Monday, Tuesday, etc.)");
}

void DigitalClockForm::BuildTimePage(PageBuilder page)
{
    PageBuilder frame = page.Frame(u"Time Format");
    chkShowTimeBeforeDate =
        frame.CheckBox(QStringLiteral("chkShowTimeBeforeDate"), u"Show Time before Date");
    chkMilitaryTime =
        frame.CheckBox(QStringLiteral("chkMilitaryTime"), u"24 hour clock (military time)");
    chkShowSeconds = frame.CheckBox(QStringLiteral("chkShowSeconds"), u"Show seconds");
    chkShowAMPM = frame.CheckBox(QStringLiteral("chkShowAMPM"), u"Show AM/PM");
    page.Fill();
}

void DigitalClockForm::BuildPropertiesPage(PageBuilder page)
{
    PageBuilder frame = page.Frame(u"Clock properties");
    m_font.emplace(frame, m_bench.Dialogs);
    txtPadding = frame.NumberBox(QStringLiteral("txtPadding"), u"Padding:", 0, 50);
    lblBGColor =
        frame.ColorSwatch(QStringLiteral("lblBGColor"), u"Background color:", m_bench.Dialogs);
    lblFontColor =
        frame.ColorSwatch(QStringLiteral("lblFontColor"), u"Font color:", m_bench.Dialogs);
    connect(lblBGColor, &ColorSwatch::Picked, this,
            [this](std::int32_t color) { BGColor = u"#" + CColor().ConvertToRGBHex(color); });
    connect(lblFontColor, &ColorSwatch::Picked, this,
            [this](std::int32_t color) { FontColor = u"#" + CColor().ConvertToRGBHex(color); });
    page.Fill();
}

DigitalClock DigitalClockForm::Parameters() const
{
    DigitalClock clock;
    for (std::size_t i = 0; i < optDateTime.size(); ++i)
        if (optDateTime[i]->isChecked())
            clock.optDateTime = static_cast<ClockContent>(i);
    // The item that the keyboard stands on need not be selected.
    const auto selected = lstDateTimeFormat->selectedItems();
    if (!selected.isEmpty())
        clock.lstDateTimeFormat = FromQt(selected.constFirst()->text());
    clock.chkDayOfWeek = chkDayOfWeek->isChecked();
    clock.chkShowTimeBeforeDate = chkShowTimeBeforeDate->isChecked();
    clock.chkMilitaryTime = chkMilitaryTime->isChecked();
    clock.chkShowSeconds = chkShowSeconds->isChecked();
    clock.chkShowAMPM = chkShowAMPM->isChecked();
    const FontFields font = m_font->Fields();
    clock.cboFont = font.Font;
    clock.cboFontSize = font.Size;
    clock.cboFontStyle = font.Style;
    clock.txtPadding = FromQt(txtPadding->text());
    clock.BGColor = BGColor;
    clock.FontColor = FontColor;
    return clock;
}

void DigitalClockForm::SetParameters(const DigitalClock& clock)
{
    optDateTime.at(static_cast<std::size_t>(clock.optDateTime))->setChecked(true);
    const auto items =
        lstDateTimeFormat->findItems(ToQt(clock.lstDateTimeFormat), Qt::MatchExactly);
    lstDateTimeFormat->setCurrentItem(items.isEmpty() ? nullptr : items.constFirst());
    chkDayOfWeek->setChecked(clock.chkDayOfWeek);
    chkShowTimeBeforeDate->setChecked(clock.chkShowTimeBeforeDate);
    chkMilitaryTime->setChecked(clock.chkMilitaryTime);
    chkShowSeconds->setChecked(clock.chkShowSeconds);
    chkShowAMPM->setChecked(clock.chkShowAMPM);
    m_font->SetFields({clock.cboFont, clock.cboFontSize, clock.cboFontStyle});
    txtPadding->setText(ToQt(clock.txtPadding));
    lblBGColor->SetColor(ColorOnScreen(BGColor = clock.BGColor));
    lblFontColor->SetColor(ColorOnScreen(FontColor = clock.FontColor));
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
        return Deliver(CreateCode(clock));
    }
    if (page < 1 || page > 4)
        return;
    if (const auto complaint = Check(clock); complaint && page > 2) {
        m_position.CurrentPage = 2;
        --m_position.CurrentStep;
        return Report(*complaint);
    }
    const PageWords& words = pages.at(static_cast<std::size_t>(page) - 1);
    SetHeading(
        Join({u"Digital Clock - Step ", NumberToText(m_position.CurrentStep), words.HeadingEnd}),
        words.SubHeading);
    cmdPrevious->setEnabled(page > 1);
    cmdNext->setText(ToQt(words.NextCaption));
    chkShowTimeBeforeDate->setVisible(clock.optDateTime == ClockContent::DateAndTime);
    ShowPanel(page - 1);
}

EffectPayload DigitalClockForm::CreateCode(const DigitalClock& clock)
{
    DigitalClockCode code = Generate(clock);
    m_bench.Core.SavedHEAD = std::move(code.SavedHEAD);
    m_bench.Core.SavedBODY = std::move(code.SavedBODY);
    return std::move(code.Payload);
}

} // namespace orvane
