#include "effects/text/digital_clock.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

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

TEST(DigitalClockTest, EachDateFormatHasItsLineWithAndWithoutTheDayOfWeek)
{
    const Text table = ExpectedText("digital_clock_lines.tsv");
    TextView rows = table;
    int count = 0;
    for (; !rows.empty(); ++count) {
        TextView row = TakeUntil(rows, u'\n');
        SCOPED_TRACE(ToUtf8(row));
        const Text item(TakeUntil(row, u'\t'));
        const bool withDay = TakeUntil(row, u'\t') == u"1";
        EXPECT_EQ(ToUtf8(dateFormats.at(static_cast<std::size_t>(count / 2)).Item), ToUtf8(item));
        ExpectSameText(row, LineOf({.lstDateTimeFormat = item, .chkDayOfWeek = withDay}, 60));
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

} // namespace
} // namespace orvane::testing
