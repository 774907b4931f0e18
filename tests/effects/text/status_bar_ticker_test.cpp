#include "effects/text/status_bar_ticker.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(StatusBarTickerTest, KeepsALineFeedInTheTextAsItIs)
{
    const Text withLineEnd = Generate({u"a\nb"}).HEADHTML;
    EXPECT_NE(Find(withLineEnd, u"        var msg  =\"a\nb\";\r\n"), 0u);
}

TEST(StatusBarTickerTest, ComplainsAboutAnEmptyTextAndNotAboutABlankOne)
{
    EXPECT_EQ(Check(StatusBarTicker{}),
              (Complaint{u"Please enter the Status Bar scrolling text.", "txtStatusBarText"}));
    EXPECT_EQ(Check(StatusBarTicker{u" "}), std::nullopt);
}

TEST(StatusBarTickerTest, ReadsTheTextOfAPastedScriptWithItsOpeningQuote)
{
    StatusBarTicker ticker;
    ReadTag(ticker, {.Whole = Generate({u"Hello"}).HEADHTML});
    EXPECT_EQ(ticker.txtStatusBarText, u"\"Hello");
    ReadTag(ticker, {.Whole = u"no script"});
    EXPECT_EQ(ticker.txtStatusBarText, u"");
}

} // namespace
} // namespace orvane::testing
