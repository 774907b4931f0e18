#include "effects/page/day_calendar_form.h"

#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Day Calendar";

constexpr ChoiceItem looks[] = {{u"leaf", u"A leaf of a calendar"}, {u"plain", u"A line of text"}};

constexpr ChoiceItem languages[] = {{u"", u"That of the page"}, {u"visitor", u"The visitor's"},
                                    {u"en", u"English"},        {u"zh", u"Chinese"},
                                    {u"da", u"Danish"},         {u"nl", u"Dutch"},
                                    {u"fi", u"Finnish"},        {u"fr", u"French"},
                                    {u"de", u"German"},         {u"el", u"Greek"},
                                    {u"it", u"Italian"},        {u"ja", u"Japanese"},
                                    {u"no", u"Norwegian"},      {u"pl", u"Polish"},
                                    {u"pt", u"Portuguese"},     {u"ru", u"Russian"},
                                    {u"es", u"Spanish"},        {u"sv", u"Swedish"},
                                    {u"tr", u"Turkish"}};

constexpr ChoiceItem zones[] = {{u"", u"The visitor's"},  {u"UTC"},
                                {u"Europe/London"},       {u"Europe/Berlin"},
                                {u"Europe/Athens"},       {u"America/New_York"},
                                {u"America/Chicago"},     {u"America/Denver"},
                                {u"America/Los_Angeles"}, {u"America/Sao_Paulo"},
                                {u"Asia/Kolkata"},        {u"Asia/Tokyo"},
                                {u"Australia/Sydney"}};

} // namespace

DayCalendarForm::DayCalendarForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmDayCalendar", bench, parent)
{
    PageBuilder day = AddPage({heading, u"Choose what the calendar shows of the day on which the "
                                        u"page is seen."});
    day.ChoiceBox("cboLook", u"&Look:", looks);
    day.OpenChoiceBox("cboLanguage", u"Lan&guage:", languages,
                      u"A language, or its short name, such as \"de-AT\"");
    day.OpenChoiceBox("cboTimeZone", u"&Time zone:", zones,
                      u"A time zone, or the name of another one, such as \"Europe/Rome\"");
    day.CheckBox("chkMonth", u"&Month");
    day.CheckBox("chkWeekday", u"Day of the &week");
    day.CheckBox("chkDay", u"&Day");
    day.CheckBox("chkYear", u"&Year");
    day.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the calendar looks like."});
    AddPageColor(look, "cmdHeadColor", u"&Head color:");
    AddPageColor(look, "cmdHeadTextColor", u"H&ead text color:");
    AddPageColor(look, "cmdPaperColor", u"Pape&r color:");
    AddTextLook(look);
    look.NumberBox("txtCorners", u"Round corner&s:", {}, u"pixels");
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
