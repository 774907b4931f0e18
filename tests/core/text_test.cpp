#include "core/text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

namespace orvane::testing {
namespace {

TEST(TextTest, FindCountsFromOneAndGivesZeroForNothing)
{
    EXPECT_EQ(Find(u"abcabc", u"b"), 2u);
    EXPECT_EQ(Find(u"abcabc", u"b", 3), 5u);
    EXPECT_EQ(Find(u"abcabc", u"x"), 0u);
    EXPECT_EQ(Find(u"abc", u"a", 0), 0u);
    EXPECT_EQ(Find(u"abc", u"c", 9), 0u);
    EXPECT_EQ(FindIgnoringCase(u"a<HEAD>", u"<head"), 2u);
    EXPECT_EQ(FindIgnoringCase(u"abc", u"C", 4), 0u);
    EXPECT_EQ(FindLast(u"a/b/c", u"/"), 4u);
}

TEST(TextTest, BytesAreFoundWhereTheirCharactersAre)
{
    constexpr std::string_view signs = "aAbB<>\xC9\xE9\xFF";
    std::mt19937 random(20261123);
    const auto make = [&](std::size_t longest) {
        std::string bytes(random() % (longest + 1), ' ');
        for (char& byte : bytes)
            byte = signs[random() % signs.size()];
        return bytes;
    };
    for (int round = 0; round < 20000; ++round) {
        const std::string bytes = make(12), sought = make(3);
        const std::size_t from = random() % 15;
        EXPECT_EQ(FindIgnoringCase(bytes, sought, from),
                  FindIgnoringCase(FromBytes(bytes), FromBytes(sought), from))
            << "\"" << bytes << "\" \"" << sought << "\" " << from;
    }
}

TEST(TextTest, CutsStayInsideTheText)
{
    EXPECT_EQ(Left(u"abc", 9), u"abc");
    EXPECT_EQ(Right(u"abc", 2), u"bc");
    EXPECT_EQ(Mid(u"abc", 2), u"bc");
    EXPECT_EQ(Mid(u"abc", 4), u"");
    EXPECT_EQ(Mid(u"abc", 2, 1), u"b");
}

TEST(TextTest, WhatIsTakenPieceByPieceIsListedAgain)
{
    for (const TextView whole : {u"a;;b", u";a", u"a", u""}) {
        std::vector<Text> pieces;
        TextView rest = whole;
        do
            pieces.emplace_back(TakeUntil(rest, u';'));
        while (!rest.empty());
        EXPECT_EQ(Listed(pieces, u";"), whole);
    }
    TextView rest = u"a;";
    EXPECT_EQ(TakeUntil(rest, u';'), u"a");
    EXPECT_EQ(rest, u"");
}

TEST(TextTest, TrimTakesOffBlanksAlone)
{
    EXPECT_EQ(Trim(u"  a b \t "), u"a b \t");
    EXPECT_EQ(Trim(u"   "), u"");
}

TEST(TextTest, CaseMapsOneCharacterToOneWithoutLocale)
{
    EXPECT_EQ(ToLower(Text(u"ÄÖÜ ŁŹŸ ΑΩ ЖЁ")), u"äöü łźÿ αω жё");
    EXPECT_EQ(ToUpper(Text(u"äöü łźÿ αω жё")), u"ÄÖÜ ŁŹŸ ΑΩ ЖЁ");
    EXPECT_EQ(ToUpper(Text(u"ßıς÷")), u"ßıς÷");
    EXPECT_EQ(ToLower(Text(u"İ×")), u"İ×");
    for (char32_t c = 0; c < 0xD800; ++c) {
        const auto unit = static_cast<char16_t>(c);
        EXPECT_EQ(ToLower(ToUpper(ToLower(unit))), ToLower(unit)) << static_cast<int>(c);
    }
}

TEST(TextTest, ReplaceAllNeverLooksAtWhatItPutIn)
{
    EXPECT_EQ(ReplaceAll(u"aaa", u"a", u"aa"), u"aaaaaa");
    EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(ReplaceAll(u"abc", u"", u"x"), u"abc");
}

TEST(TextTest, BytesAndCharactersTurnIntoEachOther)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(ToBytes(FromBytes(all)), all);
    EXPECT_THROW(ToBytes(u"\u0100"), std::logic_error);
}

TEST(TextTest, Utf8RoundTripsAndReplacesWhatIsIllFormed)
{
    const Text text = u"a\u00e9\u20ac\U0001F600";
    EXPECT_EQ(ToUtf8(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
    EXPECT_EQ(FromUtf8("\xC0\x80\xE9t\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFDt\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(FromUtf8("\xE2\x82"), u"\uFFFD\uFFFD");
    for (const char* wrong : {"\xE0\x80\xAF", "\xE0\x9F\xBF", "\xF0\x80\x80\xAF",
                              "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80"})
        EXPECT_EQ(FromUtf8(wrong), Text(std::strlen(wrong), u'\uFFFD')) << "overlong or too large";
    const char16_t half[] = {0xD83D, u'x', 0};
    EXPECT_EQ(ToUtf8(half), "\xEF\xBF\xBDx");
}

} // namespace
} // namespace orvane::testing
