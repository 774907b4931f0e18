#include "insertion/page_edit.h"
#include "tests/support/expect_text.h"
#include "tests/support/insertion_oracle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

namespace orvane {
namespace {

using testing::ExpectedInsertion;
using testing::ExpectInsertion;
using testing::ExpectSameBytes;
using testing::InsertionWork;
using testing::Spliced;
using Place = InsertionWork::Place;
using Ending = ExpectedInsertion::Ending;

/// A kind of page: what its author's text looks like in it, and what "é" and "ł" must become when
/// they go into its markup.
struct PageKind
{
    const char* Name;
    std::string Start;
    std::string Charset;
    std::vector<std::string> Words;
    std::string Accented;
    std::string Stroked;
    bool IsUtf16 = false;
};

std::ostream& operator<<(std::ostream& out, const PageKind& kind)
{
    return out << kind.Name;
}

const std::vector<std::string> plainWords = {"Hello", "<p>", "<!-- -->", " ", "\t", "&amp;"};
const std::vector<std::string> utf8Words = {"\xC3\xA9t\xC3\xA9", "\xE6\xBC\xA2\xE5\xAD\x97",
                                            "\xF0\x9F\x98\x80", "Hello"};
const std::vector<std::string> latinWords = {"\xE9t\xE9 ", "\x80 5", "\xFF", "na\xEFve"};
// The second byte of a Shift_JIS character may be a letter, a backslash or a brace.
const std::vector<std::string> shiftJisWords = {"\x83\x5C\x83\x74\x83\x67", "\x95\x5C", "\xB1",
                                                "\x8A\xBF\x8E\x9A", "\x83\x7B"};
const std::string zero("\0<bo\0dy>\0", 9);

const PageKind kinds[] = {
    {"Utf8Marked", "\xEF\xBB\xBF", "", utf8Words, "\xC3\xA9", "\xC5\x82"},
    {"Utf8Declared", "", "<meta charset='UTF-8'>", utf8Words, "\xC3\xA9", "\xC5\x82"},
    {"Utf8Undeclared", "<!-- \xE2\x82\xAC -->", "", utf8Words, "\xC3\xA9", "\xC5\x82"},
    {"Windows1252Declared", "",
     "<META HTTP-EQUIV=Content-Type CONTENT=\"text/html; charset=windows-1252\">", latinWords,
     "\xE9", "&#322;"},
    {"Windows1252Undeclared", "<!-- \xE9 -->", "", latinWords, "\xE9", "&#322;"},
    {"Ascii", "", "", plainWords, "\xE9", "&#322;"},
    {"ShiftJis", "", "<meta charset=Shift_JIS>", shiftJisWords, "&#233;", "&#322;"},
    {"ZeroBytes", zero, "", {zero, std::string("\0", 1), "\xE9"}, "\xE9", "&#322;"},
    {"Utf16", "", "", plainWords, "", "", true},
};

/// Pages of one kind, always the same ones.
class PageMaker
{
public:
    explicit PageMaker(const PageKind& kind) : m_kind(kind), m_random(20011128) {}

    std::string Make()
    {
        const std::string head = Some({"<head>", "<HEAD>", "<Head profile=x>", "<head\r\n>"});
        const std::string body = Some({"<body>", "<BODY CLASS=\"a\">", "<body\nonload=\"go(1)\">",
                                       "<body onLoad='GO(f(1))' onunload=\"bye()\">"});
        std::string page = m_kind.Start + Some({"", "<!DOCTYPE html>" + End(), "<html>" + End()});
        page += Decoy() + head + Some({"", End(), Word()}) + m_kind.Charset + Filling();
        page += EarlierCopy() + Decoy() + Filling() + Some({"</head>", "</HEAD >", "</heaD>"});
        page += End() + Decoy() + body + Filling() + EarlierCopy() + Filling();
        page += Some({"</body>", "</BODY></HTML>" + End(), "</body>" + Filling(), ""});
        return m_kind.IsUtf16 ? Utf16(page) : page;
    }

private:
    std::size_t Below(std::size_t limit) { return m_random() % limit; }
    std::string Some(const std::vector<std::string>& choices)
    {
        return choices[Below(choices.size())];
    }
    std::string Word() { return Some(m_kind.Words); }
    std::string End() { return Some({"\r\n", "\n", "\r", "\n\r", ""}); }

    std::string Filling()
    {
        std::string text;
        for (std::size_t count = Below(12); count > 0; --count)
            text += Below(3) == 0 ? End() : Word();
        // Now and then it pushes what follows past the last position.
        if (Below(30) == 0)
            for (const std::string word = Word(); text.size() < 32700;)
                text += word;
        return text;
    }

    /// Mostly nothing; else something that looks like a tag and is none.
    std::string Decoy()
    {
        if (Below(3) != 0)
            return {};
        return Some({"<!-- <head> -->", "<!-- </head --> ", "<script>'<head>'</script>",
                     "<script>x='</body>'</script>", "<header>", "<!-- <BODY> </BODY> -->",
                     "<script>var b=\"<body\";</script>", "<!--E-->", "<!-->-->"});
    }

    std::string EarlierCopy()
    {
        if (Below(3) != 0)
            return {};
        const std::string copy = "<!--B-->" + Word() + Some({"<!--E-->", "<!--e-->", ""});
        return copy + Some({"", copy, End() + "<!--b-->other<!--E-->"});
    }

    static std::string Utf16(const std::string& page)
    {
        std::string wide = "\xFF\xFE";
        for (const char byte : page)
            wide.append({byte, '\0'});
        return wide;
    }

    const PageKind& m_kind;
    std::mt19937 m_random;
};

const Text markup = u"<!--B-->\u00E9\u0142<!--E-->";

/// The same work for the program and for the oracle.
FinishedPayload PayloadOf(const InsertionWork& work)
{
    FinishedPayload payload{.BeginMarker = u"<!--B-->", .EndMarker = u"<!--E-->"};
    payload.ReplaceInBody = work.Searches;
    if (work.Where == Place::Head)
        payload.Effect.HEADHTML = markup;
    else if (work.Where == Place::Body)
        payload.Effect.BODYHTML = markup;
    else if (work.Where == Place::OnLoad)
        payload.Effect.OnLoadFunc = u"go";
    else
        payload.Effect.OnUnloadFunc = u"bye";
    payload.Effect.OnLoadArgs = payload.Effect.OnUnloadArgs = u"('\u00E9\u0142')";
    return payload;
}

std::vector<InsertionWork> AllWork(const PageKind& kind)
{
    const std::string text = kind.Accented + kind.Stroked;
    InsertionWork work{.Code = "<!--B-->" + text + "<!--E-->",
                       .Begin = "<!--B-->",
                       .End = "<!--E-->",
                       .Args = "('" + text + "')"};
    std::vector<InsertionWork> all;
    for (const bool yes : {true, false})
        for (const bool searches : {true, false})
            for (const Place place : {Place::Head, Place::Body, Place::OnLoad, Place::OnUnload}) {
                work.Where = place;
                work.Func = place == Place::OnLoad ? "go" : "bye";
                work.Searches = searches || place == Place::Head;
                work.Yes = yes;
                all.push_back(work);
            }
    return all;
}

void ExpectOutcome(const std::string& page, const ExpectedInsertion& expected, const PageEdit& edit)
{
    switch (expected.How) {
    case Ending::Written:
        ASSERT_TRUE(std::holds_alternative<EditedPage>(edit));
        ExpectSameBytes(Spliced(page, expected), std::get<EditedPage>(edit).Bytes);
        break;
    case Ending::Manual:
        EXPECT_EQ(edit, PageEdit(ManualFallback()));
        break;
    case Ending::Overflow:
        EXPECT_EQ(edit, PageEdit(Fault::Overflow));
        break;
    case Ending::InvalidCall:
        EXPECT_EQ(edit, PageEdit(Fault::InvalidProcedureCall));
        break;
    }
}

class PageEditPropertyTest : public ::testing::TestWithParam<PageKind>
{
};

std::string NameOf(const ::testing::TestParamInfo<PageKind>& kind)
{
    return kind.param.Name;
}

INSTANTIATE_TEST_SUITE_P(Kinds, PageEditPropertyTest, ::testing::ValuesIn(kinds), NameOf);

TEST_P(PageEditPropertyTest, ChangesNoByteOutsideOfWhatItPutsIn)
{
    PageMaker maker(GetParam());
    const auto allWork = AllWork(GetParam());
    std::array<int, 4> endings{};
    for (int round = 0; round < 80 && !HasFailure(); ++round) {
        const std::string page = maker.Make();
        for (const InsertionWork& work : allWork) {
            const ExpectedInsertion expected = ExpectInsertion(page, work);
            int asked = 0;
            const PageEdit edit = EditPage(page, PayloadOf(work), [&] {
                ++asked;
                return work.Yes;
            });
            EXPECT_EQ(asked, expected.Asked ? 1 : 0);
            ExpectOutcome(page, expected, edit);
            ++endings[static_cast<std::size_t>(expected.How)];
        }
    }
    // The pages must be such that something was tried.
    if (GetParam().IsUtf16)
        EXPECT_EQ(endings[0] + endings[1], 80 * 16);
    else
        for (const int count : endings)
            EXPECT_GT(count, 10);
}

/// The place behind the first ">" that follows `tag`; 0 when there is none.
std::size_t BehindTag(const std::string& page, const std::string& tag)
{
    const auto same = [](char left, char right) { return left == right || left + 32 == right; };
    const auto place = std::search(page.begin(), page.end(), tag.begin(), tag.end(), same);
    return page.find('>', static_cast<std::size_t>(place - page.begin())) + 1;
}

TEST_P(PageEditPropertyTest, PutsAllFourPiecesBetweenTheStretchesOfThePage)
{
    const std::string text = GetParam().Accented + GetParam().Stroked;
    FinishedPayload payload{.BeginMarker = u"<!--new-->", .EndMarker = u"<!--/new-->"};
    payload.Effect = {.HEADHTML = u"H\u00E9\u0142",
                      .BODYHTML = u"B\u00E9\u0142",
                      .OnLoadFunc = u"f1\u00E9\u0142",
                      .OnLoadArgs = u"()",
                      .OnUnloadFunc = u"f2\u00E9\u0142",
                      .OnUnloadArgs = u"()"};
    PageMaker maker(GetParam());
    int tried = 0;
    for (int round = 0; round < 80 && !HasFailure(); ++round) {
        const std::string page = maker.Make();
        const std::size_t head = BehindTag(page, "<head");
        const std::size_t body = BehindTag(page, "<body");
        const PageEdit edit = EditPage(page, payload, [] { return true; });
        if (GetParam().IsUtf16) {
            EXPECT_EQ(edit, PageEdit(ManualFallback()));
            ++tried;
            continue;
        }
        const auto* edited = std::get_if<EditedPage>(&edit);
        if (edited == nullptr || head >= body)
            continue;
        ++tried;
        ExpectSameBytes(page.substr(0, head + 1) + "\r\nH" + text + "\r\n" +
                            page.substr(head, body - 1 - head) + " onload=\"f1" + text +
                            "()\"  onunload=\"f2" + text + "()\" " + page.substr(body - 1, 2) +
                            "\r\nB" + text + "\r\n" + page.substr(body),
                        edited->Bytes);
    }
    EXPECT_GT(tried, 30);
}

} // namespace
} // namespace orvane
