#include "effects/text/digital_clock.h"
#include "insertion/new_page.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

constexpr auto both = ClockContent::DateAndTime;

struct ClockCase
{
    const char* LocalTime;
    DigitalClock Clock;
    const char* Words; ///< "~" stands for a blank that does not break
};

TEST(DigitalClockBrowserTest, ShowsDateAndTimeAndFollowsTheVisitorsClock)
{
    const ClockCase cases[] = {
        {"2003-04-07T00:05:00",
         {.optDateTime = both, .lstDateTimeFormat = u"November 28", .chkDayOfWeek = true},
         "Monday, April 7 ~ 12:05"},
        {"2001-10-09T23:59:09", // only October's number has a zero too many
         {.optDateTime = both,
          .lstDateTimeFormat = u"11/28/01",
          .chkShowTimeBeforeDate = true,
          .chkMilitaryTime = true},
         "23:59 ~ 010/09/01"},
        {"2001-09-30T12:00:00", {.lstDateTimeFormat = u"11/28/01"}, "09/30/01"},
        {"2001-11-10T12:00:00",
         {.lstDateTimeFormat = u"28-11-2001"},
         ""}, // its script does not run
        {"2003-12-31T23:59:59",
         {.optDateTime = both,
          .lstDateTimeFormat = u"28/11/2001",
          .chkShowSeconds = true,
          .chkShowAMPM = true},
         "31/12/2003 ~ 11:59:59 PM"}};
    const std::string words =
        "document.getElementById('spnClock').textContent.replace(/\\u00a0/g, '~')";
    BrowserPage page;
    for (const auto& [localTime, clock, wanted] : cases) {
        page.FixClock(localTime);
        page.Load(NewPageBytes(Finish(Generate(clock))));
        page.WaitUntil("document.readyState === 'complete'");
        EXPECT_EQ(page.Value(words).toString().toStdString(), wanted);
    }
    page.Value("pageClock.now += 1000");
    page.WaitUntil(words + " === '01/01/2004 ~ 12:00:00 AM'");
}

} // namespace
} // namespace orvane::testing
