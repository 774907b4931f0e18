#include "reedit/taking_out.h"

#include "core/effect_markers.h"
#include "tests/fuzz/taking_out_checks.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(TakingOutTest, UndoesInsertionsInEveryPageOfFourTokens)
{
    EXPECT_EQ(CheckAllPages(4), 41370);
}

// A block that somebody moved goes with its line end alone, whatever was doubled around it by
// chance; what an insertion wrote around a block goes even when something was put behind the tag.
TEST(TakingOutTest, TakesWhatAnInsertionWroteAroundABlockAndNothingOfAnyOther)
{
    const EffectMarkers markers = MarkersOf(u"Sound");
    const std::string block = ToBytes(Join({markers.Begin, lineEnd, markers.End}));
    const std::pair<std::string, std::string> rows[] = {
        {"<body>x\r\n@\r\nx</body>", "<body>x</body>"},
        {"<body>y x\r\n@\r\nx</body>", "<body>y x\r\nx</body>"},
        {"<body><p><\r\n@\r\n<i></body>", "<body><p><i></body>"},
        {"<body>x\r\nx\r\n@\r\nxy\r\n</body>", "<body>xy</body>"},
        {"<body>x\r\nx\r\n@\r\nxy</body>", "<body>x\r\nxy</body>"},
        {"<body>a@b@\r\n\r\nc@\n\nd@\r", "<body>ab\r\nc\nd"},
        {"<body\nonload=\"f(1)\" id=a>[f]", "<body\n id=a>"},
        {"<body onload=\"f(1)\" id=a>[f]", "<body id=a>"},
        {"<body id=b onload=\"f(1)\"class=a>[f]", "<body id=b class=a>"},
        {"<body onload='a(); f(1)' onunload=f(2);b(&quot;;f(3)&quot;);f(4)>[f]",
         "<body onload='a()' onunload=b(&quot;;f(3)&quot;)>"},
    };
    for (const auto& [page, expected] : rows) {
        std::string rest = ReplaceAll(page, "@", block);
        rest = ReplaceAll(rest, "[f]", ReplaceAll(block, "\r\n", "\r\nfunction f(n) {}"));
        for (auto effects = EffectsIn(rest); !effects.empty(); effects = EffectsIn(rest))
            rest = Without(std::string(rest), effects.front());
        EXPECT_EQ(rest, expected);
    }
}

} // namespace
} // namespace orvane::testing
