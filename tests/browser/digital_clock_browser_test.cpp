#include "effects/text/digital_clock.h"
#include "insertion/new_page.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

constexpr auto time = ClockContent::Time;
constexpr auto both = ClockContent::DateAndTime;

const std::string shownWords = "document.getElementById('spnClock').textContent";

/// One page of the web view, on which clocks are shown at chosen local times.
class DigitalClockBrowserTest : public ::testing::Test
{
protected:
    void Show(const DigitalClock& clock, const std::string& localTime)
    {
        m_page.FixClock(localTime);
        m_page.Load(NewPageBytes(Finish(Generate(clock))));
        m_page.WaitUntil("document.readyState === 'complete' && "
                         "document.getElementById('spnClock') !== null");
    }

    /// What a visitor reads at that time; "~" stands for a blank that does not break.
    std::string WordsAt(const std::string& localTime, const DigitalClock& clock)
    {
        Show(clock, localTime);
        return m_page.Value(shownWords + ".replace(/\\u00a0/g, '~')").toString().toStdString();
    }

    BrowserPage m_page;
};

struct DateCase
{
    TextView Item;
    std::string Words;
};

TEST_F(DigitalClockBrowserTest, ShowsEachDateFormatWithAndWithoutTheDayOfWeek)
{
    const std::vector<DateCase> cases = {
        {u"November 28, 2001", "April 7, 2003"},
        {u"28 November 2001", "7 April 2003"},
        {u"November 2001", "April 2003"},
        {u"November 28", "April 7"},
        {u"11/28/01", "04/07/03"},
        {u"11-28-01", "04-07-03"},
        {u"11/28/2001", "04/07/2003"},
        {u"11-28-2001", "04-07-2003"},
        {u"28/11/01", "07/04/03"},
        {u"28-11-01", "07-04-03"},
        {u"28/11/2001", "07/04/2003"},
    };
    EXPECT_EQ(cases.size() + 1, dateFormats.size());
    for (const auto& [item, words] : cases) {
        DigitalClock clock{.lstDateTimeFormat = Text(item)};
        EXPECT_EQ(WordsAt("2003-04-07T12:00:00", clock), words);
        clock.chkDayOfWeek = true;
        EXPECT_EQ(WordsAt("2003-04-07T12:00:00", clock), "Monday, " + words);
    }
}

TEST_F(DigitalClockBrowserTest, TheLastDateFormatsScriptDoesNotRun)
{
    for (const bool withDay : {false, true}) {
        const DigitalClock clock{.lstDateTimeFormat = u"28-11-2001", .chkDayOfWeek = withDay};
        EXPECT_EQ(WordsAt("2003-04-07T12:00:00", clock), "");
        EXPECT_EQ(m_page.Value("typeof DigitalClock").toString(), QStringLiteral("undefined"));
    }
}

TEST_F(DigitalClockBrowserTest, OnlyOctobersNumberHasAZeroTooMany)
{
    const DigitalClock clock{.lstDateTimeFormat = u"11/28/01"};
    EXPECT_EQ(WordsAt("2001-09-30T12:00:00", clock), "09/30/01");
    EXPECT_EQ(WordsAt("2001-10-09T12:00:00", clock), "010/09/01");
    EXPECT_EQ(WordsAt("2001-11-10T12:00:00", clock), "11/10/01");
}

struct TimeCase
{
    const char* LocalTime;
    std::string Words;
    bool MilitaryTime;
    bool Seconds;
    bool AMPM;
};

TEST_F(DigitalClockBrowserTest, ShowsEachTimeFormat)
{
    const std::vector<TimeCase> cases = {
        {"2003-04-07T00:05:00", "12:05", false, false, false},
        {"2003-04-07T00:05:00", "12:05:00 AM", false, true, true},
        {"2003-04-07T00:05:00", "0:05 AM", true, false, true},
        {"2003-04-07T12:00:00", "12:00 PM", false, false, true},
        {"2003-04-07T23:59:09", "11:59:09", false, true, false},
        {"2003-04-07T23:59:09", "23:59:09", true, true, false},
    };
    for (const TimeCase& wanted : cases)
        EXPECT_EQ(WordsAt(wanted.LocalTime, {.optDateTime = time,
                                             .chkMilitaryTime = wanted.MilitaryTime,
                                             .chkShowSeconds = wanted.Seconds,
                                             .chkShowAMPM = wanted.AMPM}),
                  wanted.Words);
}

TEST_F(DigitalClockBrowserTest, ShowsDateAndTimeInEitherOrder)
{
    DigitalClock clock{.optDateTime = both, .lstDateTimeFormat = u"November 28"};
    EXPECT_EQ(WordsAt("2003-04-07T23:59:09", clock), "April 7 ~ 11:59");
    clock.chkShowTimeBeforeDate = true;
    EXPECT_EQ(WordsAt("2003-04-07T23:59:09", clock), "11:59 ~ April 7");
}

TEST_F(DigitalClockBrowserTest, FollowsTheVisitorsClock)
{
    const DigitalClock clock{.optDateTime = both,
                             .lstDateTimeFormat = u"28/11/2001",
                             .chkShowSeconds = true,
                             .chkShowAMPM = true};
    EXPECT_EQ(WordsAt("2003-12-31T23:59:59", clock), "31/12/2003 ~ 11:59:59 PM");
    m_page.Value("pageClock.now += 1000");
    m_page.WaitUntil(shownWords + " === '01/01/2004 \\u00a0 12:00:00 AM'");
}

TEST_F(DigitalClockBrowserTest, CarriesTheChosenStyle)
{
    Show({.optDateTime = time,
          .cboFont = u"Courier New",
          .cboFontSize = u"24",
          .cboFontStyle = u"Bold Italic",
          .txtPadding = u"5",
          .BGColor = u"#FFFF00",
          .FontColor = u"#0000FF"},
         "2003-04-07T12:00:00");
    const auto style = [&](const std::string& property) {
        const std::string element = "getComputedStyle(document.getElementById('spnClock'))";
        return m_page.Value(element + "." + property).toString().toStdString();
    };
    EXPECT_EQ(style("backgroundColor"), "rgb(255, 255, 0)");
    EXPECT_EQ(style("color"), "rgb(0, 0, 255)");
    EXPECT_EQ(style("fontFamily"), "\"Courier New\"");
    EXPECT_EQ(style("fontSize"), "32px");
    EXPECT_EQ(style("fontWeight"), "700");
    EXPECT_EQ(style("fontStyle"), "italic");
    EXPECT_EQ(style("paddingLeft"), "5px");
}

} // namespace
} // namespace orvane::testing
