#include "insertion/page_edit.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace orvane::testing {
namespace {

/// A kind of page: what its author's text looks like in it, and what "éł" must become when it goes
/// into its markup.
struct PageKind
{
    const char* Name;
    std::string Start;
    std::string Charset;
    std::vector<std::string> Words;
    std::string Inserted;
};

const std::vector<std::string> plainWords = {"Hello", "<p>", "<!-- -->", " ", "\t", "&amp;"};
const std::vector<std::string> utf8Words = {"\xC3\xA9t\xC3\xA9", "\xE6\xBC\xA2\xE5\xAD\x97",
                                            "\xF0\x9F\x98\x80", "Hello"};
const std::vector<std::string> latinWords = {"\xE9t\xE9 ", "\x80 5", "\xFF", "na\xEFve"};
// The second byte of a Shift_JIS character may be a letter, a backslash or a brace.
const std::vector<std::string> shiftJisWords = {"\x83\x5C\x83\x74\x83\x67", "\x95\x5C", "\xB1",
                                                "\x8A\xBF\x8E\x9A", "\x83\x7B"};
const std::string zero("\0<bo\0dy>\0", 9);

const PageKind kinds[] = {
    {"Utf8Marked", "\xEF\xBB\xBF", "", utf8Words, "\xC3\xA9\xC5\x82"},
    {"Utf8Declared", "", "<meta charset='UTF-8'>", utf8Words, "\xC3\xA9\xC5\x82"},
    {"Utf8Undeclared", "<!-- \xE2\x82\xAC -->", "", utf8Words, "\xC3\xA9\xC5\x82"},
    {"Windows1252Declared", "",
     "<META HTTP-EQUIV=Content-Type CONTENT=\"text/html; charset=windows-1252\">", latinWords,
     "\xE9&#322;"},
    {"Windows1252Undeclared", "<!-- \xE9 -->", "", latinWords, "\xE9&#322;"},
    {"Ascii", "", "", plainWords, "\xE9&#322;"},
    {"ShiftJis", "", "<meta charset=Shift_JIS>", shiftJisWords, "&#233;&#322;"},
    {"ZeroBytes", zero, "", {zero, std::string("\0", 1), "\xE9"}, "\xE9&#322;"},
};

class PageEditPropertyTest : public ::testing::TestWithParam<PageKind>
{
protected:
    std::string Some(const std::vector<std::string>& choices)
    {
        return choices[m_random() % choices.size()];
    }

    std::string Filling()
    {
        std::string text;
        for (std::size_t count = m_random() % 12; count > 0; --count)
            text += m_random() % 3 == 0 ? Some({"\r\n", "\n", "\r"}) : Some(GetParam().Words);
        return text;
    }

private:
    std::mt19937 m_random{20011128};
};

INSTANTIATE_TEST_SUITE_P(Kinds, PageEditPropertyTest, ::testing::ValuesIn(kinds),
                         [](const auto& kind) { return kind.param.Name; });

TEST_P(PageEditPropertyTest, PutsAllFourPiecesBetweenTheStretchesOfThePage)
{
    const std::string& text = GetParam().Inserted;
    FinishedPayload payload{.BeginMarker = u"<!--new-->", .EndMarker = u"<!--/new-->"};
    payload.Effect = {.HEADHTML = u"H\u00E9\u0142",
                      .BODYHTML = u"B\u00E9\u0142",
                      .OnLoadFunc = u"f1\u00E9\u0142",
                      .OnLoadArgs = u"()",
                      .OnUnloadFunc = u"f2\u00E9\u0142",
                      .OnUnloadArgs = u"()"};
    for (int round = 0; round < 80 && !HasFailure(); ++round) {
        const std::string first = GetParam().Start + Some({"", "<!DOCTYPE html>\r\n"}) +
                                  Some({"<head>", "<HEAD>", "<Head profile=x>", "<head\r\n>"});
        const std::string body = Some({"<body", "<BODY CLASS=\"a\"", "<body\nonload=\"go(1)\""});
        const std::string middle =
            GetParam().Charset + Filling() + Some({"</head>", "</HEAD >", "</heaD>"}) + body;
        const std::string last = Filling() + Some({"</body>", "</BODY></HTML>\r\n"});
        const PageEdit edit = EditPage(first + middle + ">" + last, payload, [] { return true; });
        ExpectSameBytes(first + middle.substr(0, 1) + "\r\nH" + text + "\r\n" + middle +
                            " onload=\"f1" + text + "()\"  onunload=\"f2" + text + "()\" >" +
                            last.substr(0, 1) + "\r\nB" + text + "\r\n" + last,
                        std::get<EditedPage>(edit).Bytes);
    }
}

} // namespace
} // namespace orvane::testing
