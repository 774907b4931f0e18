#include "effects/applet/image_properties.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

TEST(ImagePropertiesTest, OffersTheTransitionsInOrder)
{
    std::vector<Text> names;
    for (const Transition& transition : Transitions())
        names.emplace_back(transition.Name);
    EXPECT_EQ(names, (std::vector<Text>{u"random", u"expand", u"overwrite", u"scroll", u"shrink",
                                        u"shutter", u"slidein", u"slideout", u"squish"}));
}

struct ChoiceCase
{
    TextView Transition;
    TextView Directions; ///< the first characters of the items
    TextView Label;
    TextView DescriptionStart;
};

class TransitionChoiceTest : public ::testing::TestWithParam<ChoiceCase>
{
};

TEST_P(TransitionChoiceTest, SetsDirectionsAndLabels)
{
    const auto choice = ChoiceOf(GetParam().Transition);
    ASSERT_TRUE(choice);
    Text first;
    for (const TextView item : choice->Items)
        first += item.front();
    EXPECT_EQ(first, GetParam().Directions);
    EXPECT_EQ(choice->IsEnabled, !GetParam().Directions.empty());
    EXPECT_EQ(choice->Label, GetParam().Label);
    EXPECT_TRUE(choice->Description.starts_with(GetParam().DescriptionStart));
}

INSTANTIATE_TEST_SUITE_P(
    Transitions, TransitionChoiceTest,
    ::testing::Values(
        ChoiceCase{u"slidein", u"12345678r", u"Slide In from:",
                   u"Causes the new image to slide in"},
        ChoiceCase{u"slideout", u"12345678r", u"Slide Out to:", u"Causes the existing image to sl"},
        ChoiceCase{u"scroll", u"2468r", u"Scroll In from:", u"Causes the new image to slide in"},
        ChoiceCase{u"expand", u"12345678r", u"Expand from:", u"Causes the new image to start at"},
        ChoiceCase{u"shrink", u"12345678r", u"Shrink down to:", u"Causes the existing image to c"},
        ChoiceCase{u"squish", u"26", u"Squish to:", u"Causes the new image to 'squish'"},
        ChoiceCase{u"shutter", u"", u"Direction:", u"Causes the border of the image frame"},
        ChoiceCase{u"random", u"", u"Direction:", u"This causes the special effect to ran"},
        ChoiceCase{u"overwrite", u"", u"Direction:", u"This is the default transition"}),
    [](const auto& row) { return ToUtf8(row.param.Transition); });

/// A stored transition, what the fields show of it, and what an untouched OK makes of it.
struct OpeningCase
{
    const char* Name;
    TextView Stored;
    TextView Transition;
    TextView Direction;
    int Items; ///< of the direction box; -1 when nothing is looked up
    TextView Taken;
};

class ImagePropertiesOpeningTest : public ::testing::TestWithParam<OpeningCase>
{
};

TEST_P(ImagePropertiesOpeningTest, ShowsTheStoredTransition)
{
    const OpeningCase& stored = GetParam();
    const ImageRow row{.FileName = u"a.gif", .Transition = Text(stored.Stored)};
    const ImageProperties properties = PropertiesOf(row);
    EXPECT_EQ(properties.Transition, stored.Transition);
    EXPECT_EQ(properties.Direction, stored.Direction);
    const auto choice = OpeningChoice(row);
    EXPECT_EQ(choice ? static_cast<int>(choice->Items.size()) : -1, stored.Items);
    EXPECT_EQ(WithProperties(row, properties).Transition, stored.Taken);
}

INSTANTIATE_TEST_SUITE_P(
    Stored, ImagePropertiesOpeningTest,
    ::testing::Values(
        OpeningCase{"Nothing", u"", u"", u"", -1, u""},
        OpeningCase{"Slidein", u"slidein(3)", u"slidein", u"3", 9, u"slidein(3)"},
        OpeningCase{"ScrollWithoutRandom", u"scroll(r)", u"scroll", u"r", 4, u"scroll(r)"},
        OpeningCase{"Squish", u"squish(6)", u"squish", u"6", 2, u"squish(6)"},
        OpeningCase{"ShutterIsNotLookedUp", u"shutter(1)", u"shutter", u"1", -1, u"shutter(1)"},
        OpeningCase{"OverwriteLosesALetter", u"overwrite()", u"overwrit", u"(", -1, u"overwrit(r)"},
        OpeningCase{"RandomLosesALetter", u"random()", u"rando", u"(", -1, u"rando(r)"},
        OpeningCase{"NoBracket", u"Random", u"Random", u"", -1, u"Random(r)"},
        OpeningCase{"BracketAlone", u")", u"", u"", -1, u""},
        OpeningCase{"TwoCharacters", u"4)", u"", u")", -1, u""}),
    [](const auto& row) { return row.param.Name; });

struct ValueCase
{
    TextView Transition;
    TextView Direction;
    TextView Value;
};

class TransitionValueTest : public ::testing::TestWithParam<ValueCase>
{
};

TEST_P(TransitionValueTest, FollowsTheFirstRuleThatFits)
{
    EXPECT_EQ(TransitionValue(GetParam().Transition, GetParam().Direction), GetParam().Value)
        << ToUtf8(GetParam().Transition) << ", " << ToUtf8(GetParam().Direction);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, TransitionValueTest,
    ::testing::Values(
        ValueCase{u"slidein", u"1-Northwest corner", u"slidein(1)"},
        ValueCase{u"squish", u"6-South edge", u"squish(6)"},
        ValueCase{u"scroll", u"8", u"scroll(8)"},
        ValueCase{u"shrink", u"r-Random location", u"shrink(r)"},
        ValueCase{u"expand", u"", u"expand(r)"}, ValueCase{u"expand", u"9", u"expand(r)"},
        ValueCase{u"expand", u"3 ", u"expand(r)"}, ValueCase{u"overwrite", u"2", u"overwrite(2)"},
        ValueCase{u"overwrite", u"", u"overwrite()"}, ValueCase{u"random", u"x", u"random()"},
        ValueCase{u"shutter", u"", u"shutter(1)"}, ValueCase{u"", u"x", u""},
        ValueCase{u"", u"r", u"(r)"}));

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

TEST(ImagePropertiesTest, SoundsWithABlankAreRefused)
{
    EXPECT_EQ(CheckSoundName(u"ding.au"), std::nullopt);
    const auto complaint = CheckSoundName(u" ding.au");
    ASSERT_TRUE(complaint);
    EXPECT_EQ(complaint->Words,
              u"This special effect does not allow sound filenames containing space characters.\r\n"
              u"Please rename the sound or select another sound.");
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
} // namespace orvane
