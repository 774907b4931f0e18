#include "effects/applet/more_image_effects.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(MoreImageEffectsTest, EachTransitionHasItsFrames)
{
    const Text table = ExpectedText("more_image_effects_lines.tsv");
    TextView rows = table;
    int count = 0;
    for (; !rows.empty(); ++count) {
        const TextView row = Left(rows, Find(rows, u"\n") - 1);
        rows.remove_prefix(row.size() + 1);
        const std::size_t first = Find(row, u"\t");
        const std::size_t second = Find(row, u"\t", first + 1);
        const Text tag = Generate({.EffectPicker = Text(Left(row, first - 1)),
                                   .ImageFile = u"photo.gif",
                                   .StartEdge = Text(Mid(row, first + 1, second - first - 1))})
                             .BODYHTML;
        const std::size_t from = Find(tag, u"\"auto\">\r\n") + 9;
        const std::size_t to = Find(tag, u"<PARAM NAME=TRANSITION.RATE.0");
        ExpectSameText(ReplaceAll(Join({Mid(row, second + 1), u"\t"}), u"\t", lineEnd),
                       Mid(tag, from, to - from));
    }
    EXPECT_EQ(count, 11);
}

TEST(MoreImageEffectsTest, WhatIsLeftEmptyHasItsValue)
{
    const auto tagOf = [](const MoreImageEffects& effects) { return Generate(effects).BODYHTML; };
    const auto hasLine = [](const Text& tag, TextView name, TextView value) {
        const Text line = Join({u"<PARAM NAME=", name, u" VALUE=\"", value, u"\">\r\n"});
        return Find(tag, line) != 0;
    };
    const Text bare = tagOf({});
    EXPECT_TRUE(hasLine(bare, u"PAUSE.1", u"0"));
    EXPECT_TRUE(hasLine(bare, u"CYCLES", u"1"));
    EXPECT_TRUE(hasLine(bare, u"URL.0", u"null"));
    EXPECT_EQ(Find(bare, u"GCOLOR"), 0u);
    EXPECT_TRUE(hasLine(tagOf({.LoopCount = u"Infinite"}), u"CYCLES", u"0"));
    EXPECT_TRUE(hasLine(tagOf({.SpeedSlider = 100}), u"TRANSITION.RATE.0", u"0"));
}

TEST(MoreImageEffectsTest, ChecksTheImageThenItsSize)
{
    MoreImageEffects effects{.ImageWidth = u"1"};
    EXPECT_EQ(Check(effects), (Complaint{u"Please specify an image.", "ImageFile"}));
    EXPECT_TRUE(ChooseImage(effects, {u"/p/a b.txt", {}}));
    EXPECT_EQ(ChooseImage(effects, {u"/p/a.txt", {}}), std::nullopt);
    EXPECT_EQ(effects, (MoreImageEffects{.ImageWidth = u"1"}));
    effects.ImageFile = u"a.gif";
    EXPECT_EQ(
        Check(effects),
        (Complaint{u"Please input the width and height of the special effect.", "ImageWidth"}));
    effects.ImageHeight = u" ";
    EXPECT_EQ(Check(effects), std::nullopt);
}

TEST(MoreImageEffectsTest, ABrowsedSourceStaysBehindATypedNameUntilTheBoxIsEmpty)
{
    MoreImageEffects effects{.ImageFile = u"typed.gif"};
    effects.Required.RequiredFileSources[0] = u"/p/browsed.gif";
    EXPECT_EQ(Generate(effects).Required.RequiredFileNames[0], u"typed.gif");
    EXPECT_EQ(Generate(effects).Required.RequiredFileSources[0], u"/p/browsed.gif");
    effects.ImageFile.clear();
    EXPECT_EQ(Generate(effects).Required.RequiredFileSources[0], u"");
}

} // namespace
} // namespace orvane::testing
