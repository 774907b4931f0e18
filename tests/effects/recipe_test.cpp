#include "effects/recipe.h"

#include "core/catalogue.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

constexpr TextView folder = u"/home/ann/site/recipes/";

/// The effects of all drafts of tests/expected, and fresh ones of every kind.
std::vector<AnyEffect> ManyEffects()
{
    std::vector<AnyEffect> effects;
    for (const std::string& name : ExpectedNames(".draft")) {
        const Text draft = ExpectedText(name);
        const auto command = ToUtf8(ReadDraftFields(draft).at("Effect").front());
        effects.push_back(*AnyEffect::Fresh(FindCommand(command)->Kind));
        effects.back().ReadDraft(draft);
    }
    for (const CatalogueRow& row : Catalogue())
        if (auto fresh = AnyEffect::Fresh(row.Kind))
            effects.push_back(*fresh);
    return effects;
}

TEST(RecipeTest, GivesBackEveryEffectAsItWasWrittenAndNamesItsFilesFromItsFolder)
{
    for (AnyEffect effect : ManyEffects()) {
        effect.ForEachSource([](Text& path) {
            path = path.empty() ? u"/home/ann/site/my pictures/a\u00E9.gif" : path;
        });
        const Text recipe = WriteRecipe(effect, folder);
        SCOPED_TRACE(ToUtf8(recipe));
        EXPECT_EQ(recipe.find(u"/home"), Text::npos);
        auto read = ReadRecipe(recipe, folder);
        ASSERT_TRUE(std::holds_alternative<AnyEffect>(read))
            << ToUtf8(std::get<1>(read).front().Words);
        EXPECT_EQ(std::get<AnyEffect>(read).Draft(), effect.Draft());
        EXPECT_EQ(RowOf(std::get<AnyEffect>(read).Kind()).Title, RowOf(effect.Kind()).Title);
    }
}

TEST(RecipeTest, ShowsByACommentHowARowOfAnEmptyListIsWritten)
{
    int lists = 0;
    for (const CatalogueRow& row : Catalogue()) {
        const auto fresh = AnyEffect::Fresh(row.Kind);
        const Text recipe = fresh ? WriteRecipe(*fresh, folder) : Text();
        const Text withRows = ReplaceAll(
            ReplaceAll(ReplaceAll(recipe, u"\n# ", u"\n! "), u"\n#", u"\n"), u"\n! ", u"\n# ");
        SCOPED_TRACE(ToUtf8(withRows));
        if (!fresh || withRows == recipe)
            continue;
        const auto read = ReadRecipe(withRows, folder);
        ASSERT_TRUE(std::holds_alternative<AnyEffect>(read))
            << ToUtf8(std::get<1>(read).front().Words);
        for (const FieldFacts& field : std::get<AnyEffect>(read).Fields())
            if (field.Holds == FieldHolds::Rows && !field.Name.IsSecret) {
                EXPECT_EQ(field.Value.size(), field.InRow.size()) << field.Name.Name;
                ++lists;
            }
    }
    EXPECT_GE(lists, 15);
}

TEST(RecipeTest, IsReadAsAPersonWritesIt)
{
    const auto read = ReadRecipe(u"\uFEFF# Ann: 2\r\n\r\nEffect: popup-window\r\n"
                                 u"optWhenToAppear: onexit\r\ntxtURL: a: b\\\\c\r\n"
                                 u"chkResizable: yes\r\ntxtWindowName:\r\n"
                                 u"Required: 0\r\nRequired: a.gif\r\nRequired: ../p/./a.gif",
                                 folder);
    PopupWindow expected{.optWhenToAppear = WhenToAppear::OnExit, .txtURL = u"a: b\\c"};
    expected.chkResizable = true;
    expected.Required.RequiredFileNames[0] = u"a.gif";
    expected.Required.RequiredFileSources[0] = u"/home/ann/site/p/a.gif";
    expected.Required.RequiredFileCount = 1;
    ASSERT_TRUE(std::holds_alternative<AnyEffect>(read)) << ToUtf8(std::get<1>(read).front().Words);
    EXPECT_EQ(std::get<PopupWindow>(std::get<AnyEffect>(read).Parameters()), expected);
}

TEST(RecipeTest, TellsEachLineThatCannotBeFollowed)
{
    struct Case
    {
        const char16_t* Lines;
        int Line;
        const char16_t* Words;
    };
    const Case cases[] = {
        {u"", 0, u"A recipe has one line \"Effect: name\"."},
        {u"Effect: Clock of Doom", 1, u"There is no effect \"Clock of Doom\"."},
        {u"Effect: Slideshow\nEffect: Slideshow", 2, u"A recipe has one line \"Effect: name\"."},
        {u"Effect: Slideshow\nplums", 2, u"This line is neither a comment nor \"name: value\"."},
        {u"Effect: Slideshow\n\ntxtPlums: 1", 3, u"This effect has no field \"txtPlums\"."},
        {u"Effect: Slideshow\nOthers: 1", 2, u"This effect has no field \"Others\"."},
        {u"Effect: Slideshow\nchkRepeat: perhaps", 2,
         u"\"perhaps\" is no value of \"chkRepeat\": it is \"yes\" or \"no\"."},
        {u"Effect: Slideshow\ntxtSlideDuration: 1\ntxtSlideDuration: 2", 3,
         u"\"2\" is no value of \"txtSlideDuration\": there is one line too much."},
        {u"Effect: Slideshow\nList1: a.gif", 2,
         u"\"a.gif\" is no value of \"List1\": a row of the list lacks a line or has one too "
         u"much."},
        {u"Effect: Slideshow\nRequired: a.gif", 2,
         u"\"a.gif\" is no value of \"Required\": a file is a slot, a name and a path."},
        {u"Effect: Typewriter Text\nSpeed: quick", 2,
         u"\"quick\" is no value of \"Speed\": it is a whole number."},
        {u"Effect: fading message\ncboOrder: sideways", 2,
         u"\"sideways\" is no value of \"cboOrder\": it is one of forward, random."},
        {u"Effect: Password Protection\noptScheme: 7", 2,
         u"\"7\" is no value of \"optScheme\": it is one of None, Script, Server."},
        {u"Effect: Password Protection\nGatePassword: x", 2,
         u"\"GatePassword\" is secret: it comes from a prompt or the environment."},
    };
    for (const Case& row : cases) {
        const auto read = ReadRecipe(row.Lines, folder);
        ASSERT_TRUE(std::holds_alternative<std::vector<RecipeFault>>(read)) << ToUtf8(row.Words);
        EXPECT_EQ(std::get<1>(read), (std::vector{RecipeFault{row.Line, row.Words}}))
            << ToUtf8(std::get<1>(read).front().Words);
    }
}

} // namespace
} // namespace orvane::testing
