#include "effects/text/digital_clock.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ExpectedText;
using testing::ExpectSameText;

constexpr auto date = ClockContent::Date;
constexpr auto time = ClockContent::Time;
constexpr auto both = ClockContent::DateAndTime;

/// A line of the generated page text, counted from 1, without its line end.
Text LineOf(const DigitalClock& clock, int line)
{
    const Text page = Generate(clock).BODYHTML;
    std::size_t start = 1;
    for (; line > 1; --line)
        start = Find(page, lineEnd, start) + lineEnd.size();
    return Text(Mid(page, start, Find(page, lineEnd, start) - start));
}

TEST(DigitalClockTest, WritesScriptAndElementsIntoTheBodyAlone)
{
    const std::pair<std::string, DigitalClock> cases[] = {
        {"date_default_november_28_2001", {.lstDateTimeFormat = u"November 28, 2001"}},
        {"both_day_of_week",
         {.optDateTime = both,
          .lstDateTimeFormat = u"11/28/2001",
          .chkDayOfWeek = true,
          .cboFont = u"Courier New",
          .cboFontSize = u"20",
          .cboFontStyle = u"Bold Italic",
          .txtPadding = u"5",
          .BGColor = u"#FFFF00",
          .FontColor = u"#0000FF"}},
        {"time_first",
         {.optDateTime = both,
          .lstDateTimeFormat = u"28 November 2001",
          .chkShowTimeBeforeDate = true,
          .chkMilitaryTime = true,
          .chkShowSeconds = true,
          .chkShowAMPM = true}},
        {"dangling", {.lstDateTimeFormat = u"28-11-2001"}},
        {"time_only_plain", {.optDateTime = time}}};
    for (const auto& [name, clock] : cases) {
        EffectPayload payload = Generate(clock);
        payload.SavedHEAD.clear();
        payload.SavedBODY.clear();
        ExpectSameText(ExpectedText("digital_clock_" + name + ".html"), payload.BODYHTML);
        const EffectPayload rest{.Kind = EffectKind::DigitalClock, .BODYHTML = payload.BODYHTML};
        EXPECT_EQ(payload, rest);
    }
}

TEST(DigitalClockTest, SavesTheScriptAndTheElementsWithSampleWords)
{
    const EffectPayload code = Generate({.lstDateTimeFormat = u"November 28, 2001"});
    ExpectSameText(ExpectedText("digital_clock_saved_head.html"), code.SavedHEAD);
    ExpectSameText(ExpectedText("digital_clock_saved_body.html"), code.SavedBODY);
}

TEST(DigitalClockTest, EachDateFormatHasItsLineWithAndWithoutTheDayOfWeek)
{
    const Text table = ExpectedText("digital_clock_lines.tsv");
    TextView rows = table;
    int count = 0;
    for (; !rows.empty(); ++count) {
        const TextView row = rows.substr(0, rows.find(u'\n'));
        rows.remove_prefix(row.size() + 1);
        const std::size_t tab = row.find(u'\t');
        const Text item(row.substr(0, tab));
        const bool withDay = row.at(tab + 1) == u'1';
        SCOPED_TRACE(ToUtf8(row));
        EXPECT_EQ(ToUtf8(dateFormats.at(static_cast<std::size_t>(count / 2)).Item), ToUtf8(item));
        ExpectSameText(row.substr(tab + 3),
                       LineOf({.lstDateTimeFormat = item, .chkDayOfWeek = withDay}, 60));
    }
    EXPECT_EQ(count, 24);
}

TEST(DigitalClockTest, WritesTheLinesOfTimeAndStyle)
{
    struct LineCase
    {
        int Line;
        TextView Expected;
        DigitalClock Clock;
    };
    const LineCase cases[] = {
        {60,
         u" strClock = int24Hours + ':' + intMinutes + ' ' + strAMPM",
         {.optDateTime = time,
          .lstDateTimeFormat = u"November 28",
          .chkDayOfWeek = true,
          .chkShowTimeBeforeDate = true,
          .chkMilitaryTime = true,
          .chkShowAMPM = true}},
        {60,
         u" strClock = intHours + ':' + intMinutes + ':' + intSeconds",
         {.optDateTime = time, .chkShowSeconds = true}},
        {60,
         u" strClock = '' + strMonthName + ' ' + intWeekday",
         {.optDateTime = date,
          .lstDateTimeFormat = u"November 28",
          .chkShowTimeBeforeDate = true,
          .chkShowSeconds = true}},
        {60,
         u" strClock = '' +  + ' &nbsp; ' + intHours + ':' + intMinutes",
         {.optDateTime = both, .lstDateTimeFormat = u"28-11-2001"}},
        {60,
         u" strClock = intHours + ':' + intMinutes + ' &nbsp; ' + strDayName + ', ' + ",
         {.optDateTime = both,
          .lstDateTimeFormat = u"28-11-2001",
          .chkDayOfWeek = true,
          .chkShowTimeBeforeDate = true}},
        {79, u"<LAYER ID='lyrClock' bgcolor=''></LAYER>", {.FontColor = u"#0000FF"}},
        {80,
         u"<SPAN ID='spnClock' style=';color:#0000FF;font-weight:bold;font-family:Arial;"
         u"font-size:12pt;padding:2'></SPAN>",
         {.cboFontStyle = u"Bold", .FontColor = u"#0000FF"}},
        {80,
         u"<SPAN ID='spnClock' style=';background-color:#AB0000;font-style:italic;"
         u"font-family:Arial;font-size:12pt;padding:'></SPAN>",
         {.cboFontStyle = u"Italic", .txtPadding = u"", .BGColor = u"#AB0000"}},
        {64,
         u"       strClock = \"<span style=';font-family:A\"'«ClockExpr»Ω\n;font-size: x pt;"
         u"padding:two'>\" + strClock + \"</span>\"",
         {.cboFont = u"A\"'«ClockExpr»Ω\n",
          .cboFontSize = u" x ",
          .cboFontStyle = u"bold",
          .txtPadding = u"two"}}};
    for (const auto& [line, expected, clock] : cases)
        ExpectSameText(expected, LineOf(clock, line));
}

TEST(DigitalClockTest, NeedsADateFormatUnlessItTellsTheTimeAlone)
{
    const Complaint missing{u"Please select a Date format from the list below.",
                            "lstDateTimeFormat"};
    EXPECT_EQ(Check({.optDateTime = date}), missing);
    EXPECT_EQ(Check({.optDateTime = both}), missing);
    EXPECT_EQ(Check({.optDateTime = time}), std::nullopt);
    EXPECT_EQ(Check({.lstDateTimeFormat = u"28-11-2001"}), std::nullopt);
}

TEST(DigitalClockTest, CountsThePagesSeenForthAndBack)
{
    const std::pair<ClockContent, std::vector<int>> roads[] = {
        {date, {1, 2, 4}}, {time, {1, 3, 4}}, {both, {1, 2, 3, 4}}};
    for (const auto& [content, pages] : roads) {
        const DigitalClock clock{.optDateTime = content};
        ClockPosition at;
        std::int16_t step = 1;
        for (const int page : pages) {
            EXPECT_EQ(at.CurrentPage, page);
            EXPECT_EQ(at.CurrentStep, step++);
            at = NextPage(clock, at);
        }
        for (auto page = pages.rbegin(); page != pages.rend(); ++page) {
            at = PreviousPage(clock, at);
            EXPECT_EQ(at.CurrentPage, *page);
            EXPECT_EQ(at.CurrentStep, --step);
        }
    }
}

} // namespace
} // namespace orvane
