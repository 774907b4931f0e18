#include "insertion/page_encoding.h"

#include <gtest/gtest.h>

#include <ostream>

namespace orvane {
namespace {

constexpr auto utf8 = PageEncoding::Utf8;
constexpr auto latin = PageEncoding::Windows1252;
constexpr auto ascii = PageEncoding::AsciiOnly;

struct PageCase
{
    std::string Page;
    PageEncoding Expected;
};

std::ostream& operator<<(std::ostream& out, const PageCase& one)
{
    return out << one.Page.substr(0, 200);
}

class EncodingOfTest : public ::testing::TestWithParam<PageCase>
{
};

TEST_P(EncodingOfTest, GoesByWhatABrowserWouldGoBy)
{
    EXPECT_EQ(EncodingOf(GetParam().Page), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    BytesAlone, EncodingOfTest,
    ::testing::Values(PageCase{"", latin}, PageCase{"<html>plain", latin},
                      PageCase{"\xEF\xBB\xBFplain", utf8},
                      PageCase{"\xEF\xBB\xBF<meta charset=shift_jis>", utf8},
                      PageCase{std::string("\xFF\xFE<\0", 4), ascii},
                      PageCase{std::string("\xFE\xFF\0<", 4), ascii},
                      PageCase{"na\xC3\xAFve", utf8}, PageCase{"na\xEFve", latin},
                      PageCase{"\xC3\xA9 and \xE9", latin}, PageCase{"\xC3\xA9 cut \xC3", latin},
                      PageCase{"<body>\xC3\r\nput in\r\n\xC3\xA9", utf8},
                      PageCase{"<p>\xC3\r\nalone", latin}, PageCase{"caf\xE9\r\n\xC3\xA9", latin},
                      PageCase{"\xED\xA0\x80", latin}, PageCase{"\xC0\xAF", latin}));

INSTANTIATE_TEST_SUITE_P(
    Declared, EncodingOfTest,
    ::testing::Values(
        PageCase{"<meta charset=utf-8>", utf8}, PageCase{"<META CHARSET = \"UTF-8\" />", utf8},
        PageCase{"<meta/charset='utf8'/>", utf8}, PageCase{"<meta charset=' utf-8 '>", utf8},
        PageCase{"<meta charset=utf-16>", utf8}, PageCase{"<meta charset=latin1>", latin},
        PageCase{"<meta charset=iso-8859-1>na\xC3\xAFve", latin},
        PageCase{"<meta charset=iso-8859-15>", ascii}, PageCase{"<meta charset=Shift_JIS>", ascii},
        PageCase{"<meta name=a content=b charset=utf-8>", utf8},
        PageCase{"<meta http-equiv=Content-Type content=\"text/html; charset=utf-8\">", utf8},
        PageCase{"<meta content='text/html;charset = \"utf-8\"' http-equiv='CONTENT-TYPE'>", utf8},
        PageCase{"<meta http-equiv=content-type content='charset charset=utf-8;x'>", utf8},
        PageCase{"<meta http-equiv=refresh content='charset=utf-8'>", latin},
        PageCase{"<meta content='text/html; charset=utf-8'>", latin},
        PageCase{"<meta charset=><meta charset=utf-8>", utf8},
        PageCase{"<meta charset=shift_jis><meta charset=utf-8>", ascii},
        PageCase{"<meta charset=koi8-r charset=utf-8>", ascii},
        PageCase{"<?xml version=\"1.0\" encoding='UTF-8'?>", utf8},
        PageCase{"<?xml version=\"1.0\" encoding=\"EUC-JP\"?><p>", ascii},
        PageCase{"<?xml version=\"1.0\" encoding=\"EUC-JP\"?><meta charset=utf-8>", utf8}));

INSTANTIATE_TEST_SUITE_P(
    NotDeclared, EncodingOfTest,
    ::testing::Values(
        PageCase{"<!-- <meta charset=utf-8> -->", latin},
        PageCase{"<!--> <meta charset=utf-8>", utf8}, PageCase{"<!-- <meta charset=utf-8>", latin},
        PageCase{"<!-- --!> <meta charset=utf-8> -->", latin},
        PageCase{"<img alt=\"<meta charset=utf-8>\">", latin},
        PageCase{"<img alt='>'><meta charset=utf-8>", utf8},
        PageCase{"<metal charset=utf-8>", latin}, PageCase{"<form accept-charset=utf-8>", latin},
        PageCase{"charset=utf-8", latin}, PageCase{"</p title='<meta charset=utf-8>'>", latin},
        PageCase{"<? <meta charset=utf-8>", latin}, PageCase{"<meta charset=\"utf-8", latin},
        PageCase{"<?xml encoding=utf-8?>", latin}, PageCase{"<meta", latin},
        PageCase{std::string(4075, ' ') + "<meta charset=utf-8 >", utf8},
        PageCase{std::string(4090, ' ') + "<meta charset=utf-8>", latin}));

struct CodeCase
{
    Text Code;
    std::string Expected;
};

std::ostream& operator<<(std::ostream& out, const CodeCase& one)
{
    return out << ToUtf8(one.Code);
}

class EncodeWindows1252Test : public ::testing::TestWithParam<CodeCase>
{
};

TEST_P(EncodeWindows1252Test, EscapesWhatIsLackingAsItsPlaceNeedsIt)
{
    EXPECT_EQ(EncodeForPage(GetParam().Code, latin), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Places, EncodeWindows1252Test,
    ::testing::Values(
        CodeCase{u"\u00E9 \u20AC \u2019 \u0178 \u0142", "\xE9 \x80 \x92 \x9F &#322;"},
        CodeCase{u"\U0001F600", "&#128512;"},
        CodeCase{u"<script>\U0001F600</script>\u0142", "<script>\\uD83D\\uDE00</script>&#322;"},
        CodeCase{u"<SCRIPT LANGUAGE='x'>\r\n\u0142</SCRIPT >\u0142",
                 "<SCRIPT LANGUAGE='x'>\r\n\\u0142</SCRIPT >&#322;"},
        CodeCase{u"<script src='\u0142.js'>\u0142</script>",
                 "<script src='&#322;.js'>\\u0142</script>"},
        CodeCase{u"<script a='>\u0142'>\u0142", "<script a='>&#322;'>\\u0142"},
        CodeCase{u"<scripts>\u0142", "<scripts>&#322;"},
        CodeCase{u"<!-- <script> \u0142 --> \u0142", "<!-- <script> &#322; --> &#322;"},
        CodeCase{u"<!--><script>\u0142", "<!--><script>\\u0142"},
        CodeCase{u"<img alt=\"<script>\">\u0142", "<img alt=\"<script>\">&#322;"},
        CodeCase{u"<p title=it's><script>\u0142", "<p title=it's><script>\\u0142"},
        CodeCase{u"a < b <script>\u0142", "a < b <script>\\u0142"},
        CodeCase{u"<script>'</scripted>\u0142'</script>\u0142",
                 "<script>'</scripted>\\u0142'</script>&#322;"},
        CodeCase{u"<script><!--\n'<script>\u0142</script>\u0142'//--></script>\u0142",
                 "<script><!--\n'<script>\\u0142</script>\\u0142'//--></script>&#322;"},
        CodeCase{u"<script>'<script>\u0142</script>\u0142</script>",
                 "<script>'<script>\\u0142</script>&#322;</script>"},
        CodeCase{u"<script>\u0142</script>\u0142<script>\u0142</script>",
                 "<script>\\u0142</script>&#322;<script>\\u0142</script>"}));

TEST(EncodeForPageTest, WritesEachByteThatWindows1252Has)
{
    // The five bytes that have no character stand for themselves; so does everything outside of
    // 0x80 to 0x9F.
    const std::u16string upper = u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                                 u"\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
                                 u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                                 u"\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    Text text;
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        const bool isUpper = byte >= 0x80 && byte < 0xA0;
        text.push_back(isUpper ? upper[static_cast<std::size_t>(byte - 0x80)]
                               : static_cast<char16_t>(byte));
        bytes.push_back(static_cast<char>(byte));
    }
    EXPECT_EQ(EncodeForPage(text, latin), bytes);
}

TEST(EncodeForPageTest, KeepsToAsciiInAPageOfAnotherCharset)
{
    EXPECT_EQ(EncodeForPage(u"<p>\u00E9<script>\u20AC", ascii), "<p>&#233;<script>\\u20AC");
}

TEST(EncodeForAttributeTest, NeverWritesAScriptEscape)
{
    EXPECT_EQ(EncodeForAttribute(u"('<script>\u0142\u00E9')", latin), "('<script>&#322;\xE9')");
    EXPECT_EQ(EncodeForAttribute(u"('<script>\u0142\u00E9')", utf8),
              "('<script>\xC5\x82\xC3\xA9')");
}

} // namespace
} // namespace orvane
