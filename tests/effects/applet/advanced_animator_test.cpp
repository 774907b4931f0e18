#include "effects/applet/advanced_animator.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

constexpr TextView sizeMissing =
    u"Animation width and height properties are required.  Please enter them.";
constexpr TextView sizeTooSmall = u"Animation width and height properties must be greater than 0.";

AdvancedAnimator TwoImages()
{
    return {.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.gif"}},
            .AnimationWidth = u"200",
            .AnimationHeight = u"100"};
}

AdvancedAnimator Read(TextView pasted, TextView appletText)
{
    AdvancedAnimator animator;
    ReadTag(animator, {.Whole = Text(pasted), .AppletText = Text(appletText)});
    return animator;
}

TEST(AdvancedAnimatorTest, WritesTheLinesOfARowAndOfTheWindowAsTheyAreEntered)
{
    using A = AdvancedAnimator;
    struct LineCase
    {
        void (*Enter)(A& animator);
        TextView Key;
        TextView Line; ///< empty for no line
    };
    const LineCase cases[] = {
        {[](A& a) { a.Rows[0].FileName = u" \"a.gif"; }, u"<PARAM NAME=IMAGE.0",
         u"<PARAM NAME=IMAGE.0 VALUE=\" \"a.gif\">"},
        {[](A& a) { a.Rows[0].Pause = u" "; }, u"<PARAM NAME=PAUSE.0",
         u"<PARAM NAME=PAUSE.0 VALUE=\"\">"},
        {[](A& a) { a.Rows[0].Pause = u"null"; }, u"<PARAM NAME=PAUSE.0",
         u"<PARAM NAME=PAUSE.0 VALUE=\"100\">"},
        {[](A& a) { a.Rows[0].Sound = u" null"; }, u"<PARAM NAME=SOUND.0",
         u"<PARAM NAME=SOUND.0 VALUE=\"null\">"},
        {[](A& a) { a.Rows[0].Transition = u"NULL"; }, u"<PARAM NAME=TRANSITION.TYPE.0",
         u"<PARAM NAME=TRANSITION.TYPE.0 VALUE=\"NULL\">"},
        {[](A& a) { a.Rows[0].URL = u" x y ☃ "; }, u"<PARAM NAME=URL.0",
         u"<PARAM NAME=URL.0 VALUE=\"x y ☃\">"},
        {[](A& a) { a.LoopCount = u""; }, u"<PARAM NAME=CYCLES", u""},
        {[](A& a) { a.LoopCount = u" 10 times"; }, u"<PARAM NAME=CYCLES",
         u"<PARAM NAME=CYCLES VALUE=\"1\">"},
        {[](A& a) { a.BackgroundColor = u" "; }, u"<PARAM NAME=BGCOLOR",
         u"<PARAM NAME=BGCOLOR.0 VALUE=\"\">"},
        {[](A& a) { a.AnimationHeight = u" 7 px "; }, u"HEIGHT=", u"HEIGHT=\"7 px\">"}};
    for (const auto& [enter, key, expected] : cases) {
        AdvancedAnimator animator = TwoImages();
        enter(animator);
        const Text tag = Generate(animator).BODYHTML;
        const std::size_t place = Find(tag, key);
        const Text line(place == 0 ? u"" : Mid(tag, place, Find(tag, u"\r\n", place) - place));
        ExpectSameText(expected, line);
    }
}

TEST(AdvancedAnimatorTest, ChecksRowsThenSizeThenNumbers)
{
    AdvancedAnimator animator{.Rows = {{.FileName = u"a.gif"}}};
    EXPECT_EQ(Check(animator),
              (Complaint{u"You must insert more than one image into the Animation Image List.",
                         "List1", Tone::Exclamation}));
    animator.Rows.push_back({.FileName = u"b.gif"});
    EXPECT_EQ(Check(animator), (Complaint{Text(sizeMissing), "Text20"}));
    animator.AnimationWidth = u" ";
    EXPECT_EQ(Check(animator), (Complaint{Text(sizeMissing), "Text20"}));
    animator.AnimationHeight = u"10";
    EXPECT_EQ(Check(animator), (Complaint{Text(sizeTooSmall), "Text20"}));
    animator.AnimationWidth = u"0.5 px";
    EXPECT_EQ(Check(animator), std::nullopt);
    animator.AnimationHeight = u"\"10"; // as a quoted tag is read back
    EXPECT_EQ(Check(animator), (Complaint{Text(sizeTooSmall), "Text20"}));
    animator.AnimationHeight = u"-1";
    EXPECT_EQ(Check(animator), (Complaint{Text(sizeTooSmall), "Text20"}));
}

TEST(AdvancedAnimatorTest, UnquotedValuesRunOnToTheNextQuote)
{
    const AdvancedAnimator read =
        Read(u"<APPLET CODE=Animate1.class WIDTH=300 HEIGHT=\"20\"><PARAM NAME=IMAGE.0 VALUE=a.gif>"
             u"<PARAM NAME=IMAGE.1 VALUE=\"\"><PARAM NAME=IMAGE.2 VALUE=\"c.gif\"></APPLET>",
             u"Animate1");
    EXPECT_EQ(read.AnimationWidth, u"300 HEIGHT=");
    EXPECT_EQ(read.AnimationHeight, u"\"20");
    EXPECT_EQ(read.LoopCount, u"");
    ASSERT_EQ(read.Rows.size(), 3u);
    EXPECT_EQ(read.Rows[0].FileName, u"a.gif><PARAM NAME=IMAGE.1 VALUE=");
    EXPECT_EQ(read.Rows[1].FileName, u"\""); // an empty quoted value does not end the list
    EXPECT_EQ(read.Rows[2].FileName, u"\"c.gif");
}

TEST(AdvancedAnimatorTest, ReadsAtMost31ImagesAndStopsAtAGap)
{
    AdvancedAnimator animator = TwoImages();
    for (const std::size_t count : {31u, 32u}) {
        animator.Rows.assign(count, {.FileName = u"x.gif"});
        animator.Rows[30].FileName = u"last.gif";
        const Text tag = Generate(animator).BODYHTML;
        const AdvancedAnimator read = Read(tag, u"\"Animate");
        ASSERT_EQ(read.Rows.size(), 31u);
        EXPECT_EQ(read.Rows[30].FileName, u"\"last.gif");
        const Text gap = ReplaceAll(tag, u"NAME=IMAGE.1 ", u"NAME=IMAGE.x ");
        EXPECT_EQ(Read(gap, u"\"Animate").Rows.size(), 1u);
    }
}

TEST(AdvancedAnimatorTest, TagOfTheEarlierAppletGivesSizeAndLoopCountAlone)
{
    const Text tag = u"<APPLET CODE=AnimatePLUS28 WIDTH=\"200\" HEIGHT=\"100\">\r\n"
                     u"<PARAM NAME=IMAGE VALUE=\"a.gif|b.gif\">\r\n"
                     u"<PARAM NAME=IMAGE.0 VALUE=\"a.gif\">\r\n"
                     u"<PARAM NAME=BGCOLOR.0 VALUE=\"1,2,3\">\r\n"
                     u"<PARAM NAME=CYCLES VALUE=\"3\">\r\n</APPLET>";
    const AdvancedAnimator expected{
        .AnimationWidth = u"\"200", .AnimationHeight = u"\"100", .LoopCount = u"\"3"};
    EXPECT_EQ(Read(tag, u"AnimateP"), expected);
    EXPECT_EQ(Read(tag, u"\"Animate").Rows.size(), 1u);
    EXPECT_EQ(Read(tag, u"animateP").BackgroundColor, u"\"1,2,3");
}

} // namespace
} // namespace orvane::testing
