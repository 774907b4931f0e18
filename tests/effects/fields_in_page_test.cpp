#include "effects/fields_in_page.h"

#include "core/effect_markers.h"
#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// What the wizard opens with for code between the comments of an effect of that name.
FieldsInPage FieldsIn(TextView name, const std::string& code)
{
    const EffectMarkers markers = MarkersOf(name);
    const std::string page = "<body><applet code=Lake1.class></applet>" + ToBytes(markers.Begin) +
                             "\r\n" + code + ToBytes(markers.End);
    return ReadFields(FakeFileStore(), u"/state", page, EffectsIn(page).at(0));
}

TEST(FieldsInPageTest, AreReadFromTheBlockOrTheTagBetweenTheCommentsAlone)
{
    const FieldsInPage block =
        FieldsIn(u"Flying Text", "<span data-orvane=flying-1>\xC3\xA9 !</span>");
    EXPECT_EQ(block.Kind, EffectKind::FlyingText);
    EXPECT_FALSE(block.IsKnown);
    const auto* recipe = std::get_if<Recipe>(&block.Opens);
    ASSERT_NE(recipe, nullptr);
    EXPECT_TRUE(recipe->Draft.find(u"txtText: \u00E9 !\n") != Text::npos) << ToUtf8(recipe->Draft);

    const FieldsInPage applet =
        FieldsIn(u"Typewriter", "<p><APPLET CODE=\"Typewriter9.class\" ALT=\"\xE9\"></APPLET>");
    EXPECT_EQ(applet.Kind, EffectKind::TypewriterText);
    const auto* tag = std::get_if<PastedTag>(&applet.Opens);
    ASSERT_NE(tag, nullptr);
    EXPECT_TRUE(tag->Whole.starts_with(u"<APPLET CODE=\"Typewriter9.class\" ALT=\"\u00E9\">"))
        << ToUtf8(tag->Whole);

    for (const std::string code :
         {"<applet code=\"Lake1.class\"></applet>", "<b data-orvane=message-1>x</b>", "x"})
        EXPECT_TRUE(std::holds_alternative<FreshStart>(FieldsIn(u"Typewriter", code).Opens))
            << code;
}

} // namespace
} // namespace orvane::testing
