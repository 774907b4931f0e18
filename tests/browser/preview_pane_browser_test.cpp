#include "delivery/new_page.h"
#include "effects/text/status_bar_ticker.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {
TEST(PreviewPaneBrowserTest, TheTickersTextSlidesToTheLeft)
{
    BrowserPage page;
    page.Load(NewPageBytes(Finish(Generate(StatusBarTicker{u"Welcome"}))));
    const auto position = [&] { return page.Shown("lblPageStatus").find("Welcome"); };
    ASSERT_TRUE(WaitFor([&] { return position() != std::string::npos; }));
    const std::size_t first = position();
    EXPECT_TRUE(WaitFor([&] { return position() < first; }));
    EXPECT_TRUE(WaitFor([&] { return position() + 2 < first; }));
    EXPECT_EQ(page.Value("typeof scrollit_r2l").toString(), "function");
}
} // namespace
} // namespace orvane::testing
