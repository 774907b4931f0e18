#include "effects/text/vertical_scroller.h"
#include "insertion/new_page.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

/// A page that notes each step of its scroller: how far the message stands below the box's upper
/// edge, what it says, and when.
class VerticalScrollerBrowserTest : public ::testing::Test
{
protected:
    void Load(VerticalScroller scroller)
    {
        Tidy(scroller);
        m_page.Load(
            "<script>steps = []; watch = () => {"
            "  const box = divContainer, message = spnOne;"
            "  new MutationObserver(() => steps.push({"
            "    top: message.getBoundingClientRect().top - box.getBoundingClientRect().top,"
            "    words: message.innerText.trim(), when: performance.now()}))"
            "  .observe(message, {attributes: true, childList: true});"
            "}; addEventListener('DOMContentLoaded', watch);</script>" +
            NewPageBytes(Finish(Generate(scroller))));
    }

    QVariant Value(const std::string& expression) { return m_page.Value(expression); }

    BrowserPage m_page;
};

const std::string rounds = "steps.filter((step, i) => i > 0 && step.words !== steps[i - 1].words)";

TEST_F(VerticalScrollerBrowserTest, MovesByOnePixelAndWrapsFromTheLastMessageToTheFirst)
{
    Load({.Items = {{u"It's <i>one</i>", u"one.html"}, {u"Two\r\nlines", u""}},
          .txtHeight = u"40",
          .sldrSpeed = 100,
          .txtPause = u"0"});
    m_page.WaitUntil(rounds + ".length >= 2", 30000);
    EXPECT_EQ(Value(rounds + ".slice(0, 2).map(step => step.words).join()").toString(),
              QStringLiteral("Two\nlines,It's one"));
    EXPECT_EQ(Value(rounds + "[0].top").toInt(), 40);
    EXPECT_EQ(Value("steps[0].top").toInt(), 149);
    EXPECT_EQ(Value("steps.every((step, i) => i === 0 || step.words !== steps[i - 1].words"
                    " || Math.abs(steps[i - 1].top - step.top - 1) < 0.01)"),
              QVariant(true));
    // Each message was seen to the end: it left only when it was above the box.
    EXPECT_LE(Value("steps[steps.indexOf(" + rounds + "[0]) - 1].top + 10").toInt(), 0);
    EXPECT_EQ(Value("spnOne.querySelector('a').getAttribute('href')").toString(),
              QStringLiteral("one.html"));
}

TEST_F(VerticalScrollerBrowserTest, RestsAtTheTop)
{
    Load({.Items = {{.txtItem = u"News"}}, .sldrSpeed = 100, .txtPause = u"0.7"});
    m_page.WaitUntil("steps.some(step => step.top <= -2)", 30000);
    const auto gapAt = [&](const char* top) {
        return Value(std::string("(at => steps[at].when - steps[at - 1].when)"
                                 "(steps.findIndex(step => Math.round(step.top) === ") +
                     top + "))")
            .toDouble();
    };
    EXPECT_GE(gapAt("-2"), 690);
    EXPECT_LT(gapAt("-1"), 600);
    EXPECT_LT(gapAt("1"), 600);
}

TEST_F(VerticalScrollerBrowserTest, StandsStillUnderTheMouse)
{
    Load({.Items = {{.txtItem = u"News"}}, .sldrSpeed = 100, .txtPause = u"2"});
    m_page.WaitUntil("steps.length > 0 && Math.round(steps[steps.length - 1].top) === -1", 30000);
    Value("spnOne.addEventListener('mouseover', () => document.title = 'over')");
    m_page.MoveTo("spnOne");
    m_page.WaitUntil("document.title === 'over'");
    const int under = Value("steps.length").toInt();
    static_cast<void>(WaitFor([] { return false; }, 2500));
    EXPECT_EQ(Value("steps.length").toInt(), under);
    m_page.MoveTo("document.documentElement");
    m_page.WaitUntil("steps.length > " + std::to_string(under + 10));
}

} // namespace
} // namespace orvane::testing
