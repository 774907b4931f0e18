#include "core/catalogue.h"
#include "core/draft.h"
#include "effects/effects.h"
#include "insertion/page_edit.h"
#include "reedit/placing.h"
#include "reedit/taking_out.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::testing {
namespace {

/// A draft of tests/expected: the fields of an effect, and lines that name what it gives.
class WholeTextTest : public ::testing::TestWithParam<std::string>
{
protected:
    Text Line(std::string_view name) const
    {
        const auto line = m_lines.find(name);
        return line == m_lines.end() ? Text() : line->second.front();
    }

    /// The file that the line names, or the row of a table: its file, a blank, and the fields that
    /// it begins with, "|" between them. Each further field is a line of the text.
    Text TextOf(std::string_view line) const
    {
        const Text named = Line(line);
        const std::size_t blank = Find(named, u" ");
        if (blank == 0)
            return named.empty() ? Text() : ExpectedText(ToUtf8(named));
        const Text table = u"\n" + ExpectedText(ToUtf8(Left(named, blank - 1)));
        const Text key = Join({u"\n", ReplaceAll(Mid(named, blank + 1), u"|", u"\t"), u"\t"});
        const std::size_t row = Find(table, key);
        EXPECT_NE(row, 0u) << ToUtf8(named);
        const std::size_t from = row + key.size();
        return ReplaceAll(Mid(table, from, Find(table, u"\n", from) - from), u"\t", lineEnd);
    }

    EffectPayload Made() const
    {
        auto effect = AnyEffect::Fresh(FindCommand(ToUtf8(Line("Effect")))->Kind);
        effect->ReadDraft(m_draft, Secrets::Taken);
        EXPECT_EQ(effect->Check(), std::nullopt);
        effect->Tidy();
        return effect->Generate({.Clock = 37865.270585185123});
    }

    const Text m_draft = ExpectedText(GetParam());
    const DraftFields m_lines = ReadDraftFields(m_draft);
};

Text NamesOf(const EffectPayload& payload)
{
    std::vector<Text> names(payload.Required.RequiredFileNames.begin(),
                            payload.Required.RequiredFileNames.end());
    names.insert(names.end(), payload.SupportFiles.begin(), payload.SupportFiles.end());
    std::erase(names, Text());
    return Listed(names);
}

TEST_P(WholeTextTest, IsMadeOfTheFields)
{
    const EffectCommand* command = FindCommand(ToUtf8(Line("Effect")));
    ASSERT_NE(command, nullptr);
    const EffectPayload payload = Made();

    EXPECT_EQ(RowOf(payload.Kind).MenuCommand, command->Name);
    const Text lineAtTheEnd = TextOf("BODY line");
    ExpectSameText(TextOf("HEAD"), payload.HEADHTML);
    ExpectSameText(lineAtTheEnd.empty() ? TextOf("BODY") : lineAtTheEnd + u"\r\n",
                   payload.BODYHTML);
    EXPECT_EQ(payload.IsBlock, Find(payload.HEADHTML + payload.BODYHTML, u"data-orvane=") != 0);
    ExpectSameText(Line("onLoad"), payload.OnLoadFunc + payload.OnLoadArgs);
    ExpectSameText(Line("onUnload"), payload.OnUnloadFunc + payload.OnUnloadArgs);
    ExpectSameText(Line("Files"), NamesOf(payload));
    for (const auto& [line, saved] :
         {std::pair("SavedHEAD", &payload.SavedHEAD), std::pair("SavedBODY", &payload.SavedBODY)})
        if (!Line(line).empty())
            ExpectSameText(TextOf(line), *saved);
    EXPECT_EQ(payload.MadeFiles.size(), Line("Made").empty() ? 0u : 1u);
    for (const MadeFile& file : payload.MadeFiles)
        ExpectSameBytes(ExpectedBytes(ToUtf8(Line("Made"))), file.Bytes);
}

TEST_P(WholeTextTest, StandsInAPageAsOneEffectAndGoesWithoutATrace)
{
    const std::string page = "<html>\n<head>\n</head>\n<body>\n<p>x</p>\n</body>\n</html>\n";
    const FinishedPayload payload = Finish(Made());
    const PageEdit inserted = EditPage(page, payload, [] { return false; });
    const PlacedPage placed = WithEffect(page, EndOf(page), payload);
    for (const std::string& full :
         {std::get<EditedPage>(inserted).Bytes, std::get<std::string>(placed)}) {
        const auto effects = EffectsIn(full);
        ASSERT_EQ(effects.size(), 1u) << full;
        EXPECT_EQ(effects[0].State, EffectState::Whole);
        EXPECT_EQ(std::ranges::count(effects[0].Kinds, payload.Effect.Kind), 1);
        EXPECT_EQ(effects[0].NeedsPageScript, !RunsByItself(payload.Effect));
        ExpectSameBytes(page, Without(full, effects[0]));
    }
    const std::string& full = std::get<std::string>(placed);
    EXPECT_EQ(WithReplaced(full, EffectsIn(full)[0], payload), placed);
}

INSTANTIATE_TEST_SUITE_P(Drafts, WholeTextTest, ::testing::ValuesIn(ExpectedNames(".draft")),
                         [](const auto& draft) {
                             return draft.param.substr(0, draft.param.find('.'));
                         });

} // namespace
} // namespace orvane::testing
