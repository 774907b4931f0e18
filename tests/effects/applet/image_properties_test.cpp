#include "effects/applet/image_properties.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace orvane::testing {
namespace {

TEST(ImagePropertiesTest, OffersTheTransitionsInOrderEachWithItsDirections)
{
    std::vector<Text> offered;
    for (const Transition& transition : Transitions()) {
        const auto choice = ChoiceOf(transition.Name);
        Text directions;
        for (const TextView item : choice->Items)
            directions += item.front();
        EXPECT_EQ(choice->IsEnabled, !directions.empty());
        offered.push_back(Join({transition.Name, u" ", directions, u" ", choice->Label}));
    }
    EXPECT_EQ(offered,
              (std::vector<Text>{u"random  Direction:", u"expand 12345678r Expand from:",
                                 u"overwrite  Direction:", u"scroll 2468r Scroll In from:",
                                 u"shrink 12345678r Shrink down to:", u"shutter  Direction:",
                                 u"slidein 12345678r Slide In from:",
                                 u"slideout 12345678r Slide Out to:", u"squish 26 Squish to:"}));
}

/// A stored transition, what the fields show of it, and what an untouched OK makes of it.
struct OpeningCase
{
    TextView Stored;
    TextView Transition;
    TextView Direction;
    int Items; ///< of the direction box; -1 when nothing is looked up
    TextView Taken;
};

TEST(ImagePropertiesTest, ShowsTheStoredTransition)
{
    const OpeningCase cases[] = {{u"", u"", u"", -1, u""},
                                 {u"slidein(3)", u"slidein", u"3", 9, u"slidein(3)"},
                                 {u"scroll(r)", u"scroll", u"r", 4, u"scroll(r)"},
                                 {u"squish(6)", u"squish", u"6", 2, u"squish(6)"},
                                 {u"shutter(1)", u"shutter", u"1", -1, u"shutter(1)"},
                                 {u"overwrite()", u"overwrit", u"(", -1, u"overwrit(r)"},
                                 {u"random()", u"rando", u"(", -1, u"rando(r)"},
                                 {u"Random", u"Random", u"", -1, u"Random(r)"},
                                 {u")", u"", u"", -1, u""},
                                 {u"4)", u"", u")", -1, u""}};
    for (const OpeningCase& stored : cases) {
        SCOPED_TRACE(ToUtf8(stored.Stored));
        const ImageRow row{.FileName = u"a.gif", .Transition = Text(stored.Stored)};
        const ImageProperties properties = PropertiesOf(row);
        EXPECT_EQ(properties.Transition, stored.Transition);
        EXPECT_EQ(properties.Direction, stored.Direction);
        const auto choice = OpeningChoice(row);
        EXPECT_EQ(choice ? static_cast<int>(choice->Items.size()) : -1, stored.Items);
        EXPECT_EQ(WithProperties(row, properties).Transition, stored.Taken);
    }
}

TEST(ImagePropertiesTest, WritesTheTransitionByTheFirstRuleThatFits)
{
    const std::array<TextView, 3> cases[] = {{u"slidein", u"1-Northwest corner", u"slidein(1)"},
                                             {u"squish", u"6-South edge", u"squish(6)"},
                                             {u"scroll", u"8", u"scroll(8)"},
                                             {u"shrink", u"r-Random location", u"shrink(r)"},
                                             {u"expand", u"", u"expand(r)"},
                                             {u"expand", u"9", u"expand(r)"},
                                             {u"expand", u"3 ", u"expand(r)"},
                                             {u"overwrite", u"2", u"overwrite(2)"},
                                             {u"overwrite", u"", u"overwrite()"},
                                             {u"random", u"x", u"random()"},
                                             {u"shutter", u"", u"shutter(1)"},
                                             {u"", u"x", u""},
                                             {u"", u"r", u"(r)"}};
    for (const auto& [transition, direction, value] : cases)
        EXPECT_EQ(TransitionValue(transition, direction), value)
            << ToUtf8(transition) << ", " << ToUtf8(direction);
}

TEST(ImagePropertiesTest, PausesBelowMinusTwoAreRefused)
{
    for (const TextView pause : {u"-3", u"-2.01", u" -7x"}) {
        const auto complaint = Check(ImageProperties{.Pause = Text(pause)});
        ASSERT_TRUE(complaint) << ToUtf8(pause);
        EXPECT_EQ(*complaint,
                  (Complaint{u"Enter a number greater than -3 for Pauses.\r\n"
                             u"Use -1 to pause until user clicks mouse on animation.\r\n"
                             u"Use -2 to pause until user moves mouse over animation.",
                             "Text1"}));
    }
    for (const TextView pause : {u"", u"-2", u"-1", u"-2.0", u"x-9", u"100"})
        EXPECT_EQ(Check(ImageProperties{.Pause = Text(pause)}), std::nullopt) << ToUtf8(pause);
}

TEST(ImagePropertiesTest, TakesTheFieldsAndKeepsTheImage)
{
    const ImageRow old{.FileName = u"a.gif",
                       .Pause = u"5",
                       .Transition = u"squish(2)",
                       .URL = u"old",
                       .Sound = u"old.au"};
    EXPECT_EQ(WithProperties(old, {}), (ImageRow{.FileName = u"a.gif", .Pause = u"100"}));
    EXPECT_EQ(WithProperties(
                  old, {.Pause = u" ", .Sound = u"s.au", .URL = u"wWw.x", .Transition = u"scroll"}),
              (ImageRow{.FileName = u"a.gif",
                        .Pause = u" ",
                        .Transition = u"scroll(r)",
                        .URL = u"http://wWw.x",
                        .Sound = u"s.au"}));
    for (const TextView url : {u" www.x", u"www", u"http://www.x"})
        EXPECT_EQ(WithProperties(old, {.URL = Text(url)}).URL, url);
}

} // namespace
} // namespace orvane::testing
