#include "reedit/applet_tag.h"

#include "reedit/applet_values.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using Way = AppletDispatch::Way;

struct TagCase
{
    TextView Class; ///< as the tag names it
    AppletDispatch Goes;
};

class AppletTagTest : public ::testing::TestWithParam<TagCase>
{
};

TEST_P(AppletTagTest, IsRecognisedWithAndWithoutQuotes)
{
    for (const TextView quote : {u"", u"\""}) {
        const Text tag = Join({u"<APPLET ARCHIVE=\"x.jar\" CODE=", quote, GetParam().Class, quote,
                               u" WIDTH=\"1\"></APPLET>"});
        EXPECT_EQ(RecognizeApplet(LettersBehindCode(tag).AppletTextAfterCODE), GetParam().Goes)
            << ToUtf8(tag);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AppletTagTest,
    ::testing::Values(TagCase{u"Clock.class", {Way::Nowhere}},
                      TagCase{u"Animate1.class", {Way::Choice}},
                      TagCase{u"AnimatePLUS28", {Way::Choice}},
                      TagCase{u"AnFade.class", {Way::Wizard, EffectKind::ImageEffects}},
                      TagCase{u"Lake.class", {Way::Wizard, EffectKind::ImageEffects}},
                      TagCase{u"ripple.class", {Way::Wizard, EffectKind::ImageEffects}},
                      TagCase{u"TmapCube.class", {Way::Wizard, EffectKind::ImageEffects}},
                      TagCase{u"ButtonPLUS3.class", {Way::Wizard, EffectKind::DynamicButton}},
                      TagCase{u"NavigatorTicker20.class",
                              {Way::Wizard, EffectKind::NavigatorTicker}},
                      TagCase{u"FadeText.class", {Way::Wizard, EffectKind::FadingMessage}},
                      TagCase{u"ColorSwirl.Class", {Way::Wizard, EffectKind::SwirlyText}},
                      TagCase{u"SimpleSound.class", {Way::Wizard, EffectKind::Sound}},
                      TagCase{u"Typewriter9.class", {Way::Wizard, EffectKind::TypewriterText}},
                      TagCase{u"RTLScroll.class", {Way::Wizard, EffectKind::SmoothScroll}},
                      TagCase{u"LTRScroll.class", {Way::Wizard, EffectKind::SmoothScroll}},
                      TagCase{u"ImageFade2ech.class", {Way::NotRecognized}},
                      TagCase{u"animate1.class", {Way::NotRecognized}}));

TEST(AppletTagTest, AQuoteMustStandBeforeFourLetters)
{
    EXPECT_EQ(RecognizeApplet(u"'Anim"), AppletDispatch{});
    EXPECT_EQ(RecognizeApplet(u"Anim"), AppletDispatch{});
    EXPECT_EQ(RecognizeApplet(u"\"FadX"), AppletDispatch{});
    EXPECT_EQ(RecognizeApplet(u""), AppletDispatch{});
}

TEST(AppletTagTest, ReadsTheLettersBehindTheFirstCode)
{
    EXPECT_EQ(LettersBehindCode(u"<APPLET CODE=AnimatePLUS28 CODE=Lake>"),
              (AppletLetters{u"Anima", u"AnimateP"}));
    EXPECT_EQ(LettersBehindCode(u"<APPLET CODE=\"Animate1.class\">"),
              (AppletLetters{u"\"Anim", u"\"Animate"}));
    EXPECT_EQ(LettersBehindCode(u"x CODE=Li"), (AppletLetters{u"Li", u"Li"}));
    // Without the key the letters from the fifth on are taken.
    EXPECT_EQ(LettersBehindCode(u"code=\"Animate1.class\""),
              (AppletLetters{u"=\"Ani", u"=\"Animat"}));
    EXPECT_EQ(LettersBehindCode(u"1234Animate1"), (AppletLetters{u"Anima", u"Animate1"}));
    EXPECT_EQ(LettersBehindCode(u"123"), (AppletLetters{}));
}

struct PipeCase
{
    TextView Joined;
    PipeValues Cells;
};

class PipeParseTest : public ::testing::TestWithParam<PipeCase>
{
};

TEST_P(PipeParseTest, CutsAtTheBarsAndOffTheLastCharacter)
{
    EXPECT_EQ(PipeParse(GetParam().Joined), GetParam().Cells) << ToUtf8(GetParam().Joined);
}

INSTANTIATE_TEST_SUITE_P(Joined, PipeParseTest,
                         ::testing::Values(PipeCase{u"a|b|c)", {u"a", u"b", u"c"}},
                                           PipeCase{u"a|b)", {u"a", u"b"}}, PipeCase{u"abc", {}},
                                           PipeCase{u"", {}}, PipeCase{u"a|", {u"a"}},
                                           PipeCase{u"a|b", {u"a"}},
                                           PipeCase{u"a|b|", {u"a", u"b"}},
                                           PipeCase{u"|||", {u"", u"", u""}},
                                           PipeCase{u"a|b|c|d)", {u"a", u"b", u"c|d"}}));

} // namespace
} // namespace orvane
