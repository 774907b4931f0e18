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

struct PageCase
{
    const char* File;
    DigitalClock Clock;
};

class DigitalClockPageTest : public ::testing::TestWithParam<PageCase>
{
};

TEST_P(DigitalClockPageTest, WritesScriptAndElementsIntoTheBodyAlone)
{
    EffectPayload payload = Generate(GetParam().Clock);
    payload.SavedHEAD.clear();
    payload.SavedBODY.clear();
    ExpectSameText(ExpectedText(GetParam().File), payload.BODYHTML);
    const EffectPayload rest{.Kind = EffectKind::DigitalClock, .BODYHTML = payload.BODYHTML};
    EXPECT_EQ(payload, rest);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, DigitalClockPageTest,
    ::testing::Values(PageCase{"digital_clock_date_default_november_28_2001.html",
                               {.lstDateTimeFormat = u"November 28, 2001"}},
                      PageCase{"digital_clock_both_day_of_week.html",
                               {.optDateTime = both,
                                .lstDateTimeFormat = u"11/28/2001",
                                .chkDayOfWeek = true,
                                .cboFont = u"Courier New",
                                .cboFontSize = u"20",
                                .cboFontStyle = u"Bold Italic",
                                .txtPadding = u"5",
                                .BGColor = u"#FFFF00",
                                .FontColor = u"#0000FF"}},
                      PageCase{"digital_clock_time_first.html",
                               {.optDateTime = both,
                                .lstDateTimeFormat = u"28 November 2001",
                                .chkShowTimeBeforeDate = true,
                                .chkMilitaryTime = true,
                                .chkShowSeconds = true,
                                .chkShowAMPM = true}},
                      PageCase{"digital_clock_dangling.html", {.lstDateTimeFormat = u"28-11-2001"}},
                      PageCase{"digital_clock_time_only_plain.html", {.optDateTime = time}}));

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
        EXPECT_EQ(ToUtf8(DateFormats.at(static_cast<std::size_t>(count / 2)).Item), ToUtf8(item));
        ExpectSameText(row.substr(tab + 3),
                       LineOf({.lstDateTimeFormat = item, .chkDayOfWeek = withDay}, 60));
    }
    EXPECT_EQ(count, 24);
}

struct LineCase
{
    int Line;
    TextView Expected;
    DigitalClock Clock;
};

class DigitalClockLineTest : public ::testing::TestWithParam<LineCase>
{
};

TEST_P(DigitalClockLineTest, ReadsAsItAlwaysDid)
{
    ExpectSameText(GetParam().Expected, LineOf(GetParam().Clock, GetParam().Line));
}

INSTANTIATE_TEST_SUITE_P(
    Times, DigitalClockLineTest,
    ::testing::Values(
        LineCase{60,
                 u" strClock = int24Hours + ':' + intMinutes + ' ' + strAMPM",
                 {.optDateTime = time,
                  .lstDateTimeFormat = u"November 28",
                  .chkDayOfWeek = true,
                  .chkShowTimeBeforeDate = true,
                  .chkMilitaryTime = true,
                  .chkShowAMPM = true}},
        LineCase{60,
                 u" strClock = intHours + ':' + intMinutes + ':' + intSeconds",
                 {.optDateTime = time, .chkShowSeconds = true}},
        LineCase{60,
                 u" strClock = '' + strMonthName + ' ' + intWeekday",
                 {.optDateTime = date,
                  .lstDateTimeFormat = u"November 28",
                  .chkShowTimeBeforeDate = true,
                  .chkShowSeconds = true}},
        LineCase{60,
                 u" strClock = '' +  + ' &nbsp; ' + intHours + ':' + intMinutes",
                 {.optDateTime = both, .lstDateTimeFormat = u"28-11-2001"}},
        LineCase{60,
                 u" strClock = intHours + ':' + intMinutes + ' &nbsp; ' + strDayName + ', ' + ",
                 {.optDateTime = both,
                  .lstDateTimeFormat = u"28-11-2001",
                  .chkDayOfWeek = true,
                  .chkShowTimeBeforeDate = true}}));

INSTANTIATE_TEST_SUITE_P(
    Styles, DigitalClockLineTest,
    ::testing::Values(
        LineCase{79, u"<LAYER ID='lyrClock' bgcolor=''></LAYER>", {.FontColor = u"#0000FF"}},
        LineCase{80,
                 u"<SPAN ID='spnClock' style=';color:#0000FF;font-weight:bold;font-family:Arial;"
                 u"font-size:12pt;padding:2'></SPAN>",
                 {.cboFontStyle = u"Bold", .FontColor = u"#0000FF"}},
        LineCase{80,
                 u"<SPAN ID='spnClock' style=';background-color:#AB0000;font-style:italic;"
                 u"font-family:Arial;font-size:12pt;padding:'></SPAN>",
                 {.cboFontStyle = u"Italic", .txtPadding = u"", .BGColor = u"#AB0000"}},
        LineCase{
            64,
            u"       strClock = \"<span style=';font-family:A\"'«ClockExpr»Ω\n;font-size: x pt;"
            u"padding:two'>\" + strClock + \"</span>\"",
            {.cboFont = u"A\"'«ClockExpr»Ω\n",
             .cboFontSize = u" x ",
             .cboFontStyle = u"bold",
             .txtPadding = u"two"}}));

TEST(DigitalClockTest, NeedsADateFormatUnlessItTellsTheTimeAlone)
{
    const Complaint missing{u"Please select a Date format from the list below.",
                            "lstDateTimeFormat"};
    EXPECT_EQ(Check({.optDateTime = date}), missing);
    EXPECT_EQ(Check({.optDateTime = both}), missing);
    EXPECT_EQ(Check({.optDateTime = time}), std::nullopt);
    EXPECT_EQ(Check({.lstDateTimeFormat = u"28-11-2001"}), std::nullopt);
}

struct RoadCase
{
    ClockContent Content;
    std::vector<int> Pages; ///< from the first one to the end
};

class DigitalClockRoadTest : public ::testing::TestWithParam<RoadCase>
{
};

TEST_P(DigitalClockRoadTest, CountsThePagesSeenForthAndBack)
{
    const DigitalClock clock{.optDateTime = GetParam().Content};
    ClockPosition at;
    std::int16_t step = 1;
    for (const int page : GetParam().Pages) {
        EXPECT_EQ(at.CurrentPage, page);
        EXPECT_EQ(at.CurrentStep, step++);
        at = NextPage(clock, at);
    }
    for (auto page = GetParam().Pages.rbegin(); page != GetParam().Pages.rend(); ++page) {
        at = PreviousPage(clock, at);
        EXPECT_EQ(at.CurrentPage, *page);
        EXPECT_EQ(at.CurrentStep, --step);
    }
}

INSTANTIATE_TEST_SUITE_P(Roads, DigitalClockRoadTest,
                         ::testing::Values(RoadCase{date, {1, 2, 4}}, RoadCase{time, {1, 3, 4}},
                                           RoadCase{both, {1, 2, 3, 4}}));

} // namespace
} // namespace orvane
