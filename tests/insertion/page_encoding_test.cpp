#include "insertion/page_encoding.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane::testing {
namespace {

constexpr auto utf8 = PageEncoding::Utf8;
constexpr auto latin = PageEncoding::Windows1252;
constexpr auto ascii = PageEncoding::AsciiOnly;

void ExpectEncodings(const std::vector<std::pair<std::string, PageEncoding>>& pages)
{
    for (const auto& [page, encoding] : pages)
        EXPECT_EQ(EncodingOf(page), encoding) << page.substr(0, 200);
}

TEST(EncodingOfTest, GoesByTheBytesOfAPageThatDeclaresNothing)
{
    ExpectEncodings({{"", latin},
                     {"<html>plain", latin},
                     {"\xEF\xBB\xBFplain", utf8},
                     {"\xEF\xBB\xBF<meta charset=shift_jis>", utf8},
                     {std::string("\xFF\xFE<\0", 4), ascii},
                     {std::string("\xFE\xFF\0<", 4), ascii},
                     {"na\xC3\xAFve", utf8},
                     {"na\xEFve", latin},
                     {"\xC3\xA9 and \xE9", latin},
                     {"\xC3\xA9 cut \xC3", latin},
                     {"<body>\xC3\r\nput in\r\n\xC3\xA9", utf8},
                     {"<p>\xC3\r\nalone", latin},
                     {"caf\xE9\r\n\xC3\xA9", latin},
                     {"\xED\xA0\x80", latin},
                     {"\xC0\xAF", latin}});
}

TEST(EncodingOfTest, GoesByTheDeclarationThatABrowserWouldGoBy)
{
    ExpectEncodings(
        {{"<meta charset=utf-8>", utf8},
         {"<META CHARSET = \"UTF-8\" />", utf8},
         {"<meta/charset='utf8'/>", utf8},
         {"<meta charset=' utf-8 '>", utf8},
         {"<meta charset=utf-16>", utf8},
         {"<meta charset=latin1>", latin},
         {"<meta charset=iso-8859-1>na\xC3\xAFve", latin},
         {"<meta charset=iso-8859-15>", ascii},
         {"<meta charset=Shift_JIS>", ascii},
         {"<meta name=a content=b charset=utf-8>", utf8},
         {"<meta http-equiv=Content-Type content=\"text/html; charset=utf-8\">", utf8},
         {"<meta content='text/html;charset = \"utf-8\"' http-equiv='CONTENT-TYPE'>", utf8},
         {"<meta http-equiv=content-type content='charset charset=utf-8;x'>", utf8},
         {"<meta http-equiv=refresh content='charset=utf-8'>", latin},
         {"<meta content='text/html; charset=utf-8'>", latin},
         {"<meta charset=><meta charset=utf-8>", utf8},
         {"<meta charset=shift_jis><meta charset=utf-8>", ascii},
         {"<meta charset=koi8-r charset=utf-8>", ascii},
         {"<?xml version=\"1.0\" encoding='UTF-8'?>", utf8},
         {"<?xml version=\"1.0\" encoding=\"EUC-JP\"?><p>", ascii},
         {"<?xml version=\"1.0\" encoding=\"EUC-JP\"?><meta charset=utf-8>", utf8}});
}

TEST(EncodingOfTest, PassesOverWhatIsNoDeclaration)
{
    ExpectEncodings({{"<!-- <meta charset=utf-8> -->", latin},
                     {"<!--> <meta charset=utf-8>", utf8},
                     {"<!-- <meta charset=utf-8>", latin},
                     {"<!-- --!> <meta charset=utf-8> -->", latin},
                     {"<img alt=\"<meta charset=utf-8>\">", latin},
                     {"<img alt='>'><meta charset=utf-8>", utf8},
                     {"<metal charset=utf-8>", latin},
                     {"<form accept-charset=utf-8>", latin},
                     {"charset=utf-8", latin},
                     {"</p title='<meta charset=utf-8>'>", latin},
                     {"<? <meta charset=utf-8>", latin},
                     {"<meta charset=\"utf-8", latin},
                     {"<?xml encoding=utf-8?>", latin},
                     {"<meta", latin},
                     {std::string(4075, ' ') + "<meta charset=utf-8 >", utf8},
                     {std::string(4090, ' ') + "<meta charset=utf-8>", latin}});
}

TEST(EncodeForPageTest, EscapesWhatWindows1252LacksAsItsPlaceNeedsIt)
{
    const std::vector<std::pair<Text, std::string>> cases = {
        {u"\u00E9 \u20AC \u2019 \u0178 \u0142", "\xE9 \x80 \x92 \x9F &#322;"},
        {u"\U0001F600", "&#128512;"},
        {u"<script>\U0001F600</script>\u0142", "<script>\\uD83D\\uDE00</script>&#322;"},
        {u"<SCRIPT LANGUAGE='x'>\r\n\u0142</SCRIPT >\u0142",
         "<SCRIPT LANGUAGE='x'>\r\n\\u0142</SCRIPT >&#322;"},
        {u"<script src='\u0142.js'>\u0142</script>", "<script src='&#322;.js'>\\u0142</script>"},
        {u"<script a='>\u0142'>\u0142", "<script a='>&#322;'>\\u0142"},
        {u"<scripts>\u0142", "<scripts>&#322;"},
        {u"<!-- <script> \u0142 --> \u0142", "<!-- <script> &#322; --> &#322;"},
        {u"<!--><script>\u0142", "<!--><script>\\u0142"},
        {u"<img alt=\"<script>\">\u0142", "<img alt=\"<script>\">&#322;"},
        {u"<p title=it's><script>\u0142", "<p title=it's><script>\\u0142"},
        {u"a < b <script>\u0142", "a < b <script>\\u0142"},
        {u"<script>'</scripted>\u0142'</script>\u0142",
         "<script>'</scripted>\\u0142'</script>&#322;"},
        {u"<script><!--\n'<script>\u0142</script>\u0142'//--></script>\u0142",
         "<script><!--\n'<script>\\u0142</script>\\u0142'//--></script>&#322;"},
        {u"<script>'<script>\u0142</script>\u0142</script>",
         "<script>'<script>\\u0142</script>&#322;</script>"},
        {u"<script>\u0142</script>\u0142<script>\u0142</script>",
         "<script>\\u0142</script>&#322;<script>\\u0142</script>"}};
    for (const auto& [code, expected] : cases)
        EXPECT_EQ(EncodeForPage(code, latin), expected);
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
} // namespace orvane::testing
