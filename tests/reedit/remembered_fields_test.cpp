#include "reedit/remembered_fields.h"

#include "insertion/page_edit.h"
#include "reedit/placing.h"
#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

FinishedPayload Payload(const Text& words)
{
    return Finish({.Kind = EffectKind::VerticalScroller,
                   .HEADHTML = u"<SCRIPT>\r\nfunction go(n) {}\r\n</SCRIPT>\r\n",
                   .BODYHTML = Join({u"<P>", words, u"</P>\r\n"}),
                   .OnLoadFunc = u"go",
                   .OnLoadArgs = u"('\u0142')"});
}

const Text draft = u"txtWords: one\ntxtWords: two\n";
const RememberedFields known{EffectKind::VerticalScroller, u"EffectKind: 51\n" + draft};

class RememberedFieldsTest : public ::testing::Test
{
protected:
    std::optional<RememberedFields> In(const std::string& page) const
    {
        return FieldsOf(m_files, u"/state", page, EffectsIn(page).at(0));
    }

    FakeFileStore m_files;
};

TEST_F(RememberedFieldsTest, AreKnownAgainByTheTextWhereverAndHoweverItStands)
{
    m_files.Folders = {u"/state"};
    RememberFields(m_files, u"/state", Payload(u"\u00E9"), draft);
    for (const auto& [path, bytes] : m_files.Contents)
        EXPECT_TRUE(m_files.Private.contains(path));
    for (const std::string meta : {"", "<meta charset=utf-8>", "<meta charset=shift_jis>"}) {
        const std::string bare = "<head>\n" + meta + "</head>\n<body onload='my()'>\n<p></body>";
        const auto inserted = EditPage(bare, Payload(u"\u00E9"), [] { return false; });
        EXPECT_EQ(In(std::get<EditedPage>(inserted).Bytes), known) << meta;
        const auto placed = WithEffect(bare, TopOf(bare), Payload(u"\u00E9"));
        const std::string page = std::get<std::string>(placed);
        EXPECT_EQ(In(page), known) << meta;
        EXPECT_EQ(In(std::get<std::string>(WithEffect(page, TopOf(page), Payload(u"new")))), known)
            << "of two blocks, one is known";
        EXPECT_EQ(In(ReplaceAll(page, "{}", "{ }")), std::nullopt);
        EXPECT_EQ(In(ReplaceAll(page, "go(&#39;", "go(1,&#39;")), std::nullopt);
    }
}

TEST_F(RememberedFieldsTest, AreNotTakenFromAFileThatIsNone)
{
    m_files.Folders = {u"/state"};
    RememberFields(m_files, u"/state", Payload(u"a"), draft);
    for (auto& [path, bytes] : m_files.Contents)
        bytes = ReplaceAll(bytes, ": 51", ": 99999");
    const std::string page = "<head></head><body></body>";
    EXPECT_EQ(In(std::get<std::string>(WithEffect(page, 19, Payload(u"a")))), std::nullopt);
}

} // namespace
} // namespace orvane::testing
