#include "reedit/applet_tag.h"

#include "reedit/applet_values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace orvane::testing {
namespace {

using Way = AppletDispatch::Way;

TEST(AppletTagTest, IsRecognisedWithAndWithoutQuotes)
{
    const std::pair<TextView, AppletDispatch> cases[] = {
        {u"Clock.class", {Way::Nowhere}},
        {u"AnimatePLUS28", {Way::Choice}},
        {u"AnFade.class", {Way::Wizard, EffectKind::ImageEffects}},
        {u"Typewriter9.class", {Way::Wizard, EffectKind::TypewriterText}},
        {u"LTRScroll.class", {Way::Wizard, EffectKind::SmoothScroll}},
        {u"ImageFade2ech.class", {Way::NotRecognized}},
        {u"animate1.class", {Way::NotRecognized}},
    };
    for (const auto& [name, goes] : cases)
        for (const TextView quote : {u"", u"\""}) {
            const Text tag = Join({u"<APPLET ARCHIVE=\"x.jar\" CODE=", quote, name, quote,
                                   u" WIDTH=\"1\"></APPLET>"});
            EXPECT_EQ(RecognizeApplet(TagOf(tag).AppletTextAfterCODE), goes) << ToUtf8(tag);
        }
}

TEST(AppletTagTest, ListsTheWizardsThatFillThemselves)
{
    const std::vector<EffectKind> kinds = EffectsOfTags();
    const auto has = [&](EffectKind kind) {
        return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
    };
    EXPECT_TRUE(has(EffectKind::ImageEffects) && has(EffectKind::TypewriterText));
    EXPECT_FALSE(has(EffectKind::DynamicButton)) << "its wizard opens empty";
}

TEST(AppletTagTest, AQuoteMustStandBeforeFourLetters)
{
    EXPECT_EQ(RecognizeApplet(u"'Anim"), AppletDispatch{});
    EXPECT_EQ(RecognizeApplet(u"Anim"), AppletDispatch{});
    EXPECT_EQ(RecognizeApplet(u"\"FadX"), AppletDispatch{});
    EXPECT_EQ(RecognizeApplet(u""), AppletDispatch{});
}

TEST(AppletTagTest, ReadsTheLettersBehindTheFirstCode)
{
    const auto letters = [](TextView pasted) {
        const PastedTag tag = TagOf(pasted);
        return std::pair(tag.AppletTextAfterCODE, tag.AppletText);
    };
    using Letters = std::pair<Text, Text>;
    EXPECT_EQ(letters(u"<APPLET CODE=AnimatePLUS28 CODE=Lake>"), Letters(u"Anima", u"AnimateP"));
    EXPECT_EQ(letters(u"<APPLET CODE=\"Animate1.class\">"), Letters(u"\"Anim", u"\"Animate"));
    EXPECT_EQ(letters(u"x CODE=Li"), Letters(u"Li", u"Li"));
    // Without the key the letters from the fifth on are taken.
    EXPECT_EQ(letters(u"code=\"Animate1.class\""), Letters(u"=\"Ani", u"=\"Animat"));
    EXPECT_EQ(letters(u"1234Animate1"), Letters(u"Anima", u"Animate1"));
    EXPECT_EQ(letters(u"123"), Letters());
}

TEST(PipeParseTest, CutsAtTheBarsAndOffTheLastCharacter)
{
    EXPECT_EQ(PipeParse(u"a|b|c)"), (PipeValues{u"a", u"b", u"c"}));
    EXPECT_EQ(PipeParse(u"a|b)"), (PipeValues{u"a", u"b"}));
    EXPECT_EQ(PipeParse(u"abc"), PipeValues{});
    EXPECT_EQ(PipeParse(u"a|"), PipeValues{u"a"});
    EXPECT_EQ(PipeParse(u"a|b|"), (PipeValues{u"a", u"b"}));
    EXPECT_EQ(PipeParse(u"a|b|c|d)"), (PipeValues{u"a", u"b", u"c|d"}));
}

} // namespace
} // namespace orvane::testing
