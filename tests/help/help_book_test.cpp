#include "help/help_book.h"

#include "core/help_viewer.h"
#include "delivery/delivery_flow.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

namespace orvane::testing {
namespace {

std::vector<int> NumbersOf(const std::vector<const HelpTopic*>& topics)
{
    std::vector<int> numbers;
    for (const HelpTopic* topic : topics)
        numbers.push_back(topic->Number);
    return numbers;
}

TEST(HelpBookTest, ATopicReachesToTheNextHeader)
{
    const HelpBook book = ReadHelpBook("how to edit\n=== 22   Two words \n<p>a\n\n b</p>\n"
                                       "=== 7 Ü\r\n«EffectsOfTags»\r\n=== 0 Last\nend",
                                       u"<b>these</b>");
    ASSERT_EQ(book.size(), 3u);
    EXPECT_EQ(book[0].Number, 22);
    EXPECT_EQ(book[0].Title, u"Two words");
    EXPECT_EQ(book[0].Body, u"<p>a\n\n b</p>\n");
    EXPECT_EQ(book[1].Title, u"Ü");
    EXPECT_EQ(book[1].Body, u"<b>these</b>\n");
    EXPECT_EQ(book[2].Body, u"end\n");
    EXPECT_EQ(ReadHelpBook("\xEF\xBB\xBF=== 1 A").size(), 1u);
}

TEST(HelpBookTest, WhatOnlyLooksLikeAHeaderBelongsToTheBody)
{
    for (const char* line : {"===", "=== ", "=== A", "=== 5", "=== 5x", "==== 5 A", " === 5 A",
                             "=== -5 A", "=== +5 A", "=== 99999999999 A"}) {
        const HelpBook book = ReadHelpBook("=== 1 A\n" + std::string(line) + "\n");
        ASSERT_EQ(book.size(), 1u) << line;
        EXPECT_EQ(ToUtf8(book[0].Body), std::string(line) + "\n");
    }
}

TEST(HelpBookTest, ShownTextIsWhatAReaderSees)
{
    EXPECT_EQ(ShownText(u"a<b>c</b> <img src=\"x\">d"), u"a c   d");
    EXPECT_EQ(ShownText(u"&lt;HEAD&gt; &quot;x&quot;"), u"<HEAD> \"x\"");
    EXPECT_EQ(ShownText(u"&amp;lt;"), u"&lt;");
    EXPECT_EQ(ShownText(u"ends in a tag <a"), u"ends in a tag  ");
}

TEST(HelpBookTest, SearchWantsAllWordsAndPutsTitlesFirst)
{
    const HelpBook book = ReadHelpBook("=== 1 Pages\nthe clock, &lt;HEAD&gt;\n"
                                       "=== 2 Other\n<p class=\"clock\">\n"
                                       "=== 3 The Digital Clock\npages\n"
                                       "=== 4 Clock\nof sand\n");
    EXPECT_EQ(NumbersOf(SearchBook(book, u"CLOCK")), (std::vector<int>{3, 4, 1}));
    EXPECT_EQ(NumbersOf(SearchBook(book, u"  clock\tpages ")), (std::vector<int>{1, 3}));
    EXPECT_EQ(NumbersOf(SearchBook(book, u"<head>")), (std::vector<int>{1}));
    EXPECT_EQ(NumbersOf(SearchBook(book, u"clock moon")), (std::vector<int>{}));
    EXPECT_EQ(NumbersOf(SearchBook(book, u" ")), (std::vector<int>{1, 2, 3, 4}));
}

TEST(DeliveredHelpTest, BeginsWithTheContentsAndHoldsOnceEveryTopicThatAWindowAsksFor)
{
    std::ifstream file(ORVANE_HELP_FOLDER "/orvane.hlp", std::ios::binary);
    const HelpBook book = ReadHelpBook(std::string(std::istreambuf_iterator<char>(file), {}));
    ASSERT_FALSE(book.empty());
    EXPECT_EQ(book.front().Number, help_topics::contents);
    std::set<int> numbers;
    for (const HelpTopic& topic : book)
        EXPECT_TRUE(numbers.insert(topic.Number).second) << topic.Number;
    std::set<int> wanted = {21, 29, 34, 35, 36, 37, 38, 39, 46, 55}; // inserting with an editor
    wanted.insert({help_topics::contents, help_topics::mainWindow, help_topics::preferences,
                   help_topics::editApplet, help_topics::transfer, help_topics::pageEffects});
    for (std::int16_t page = 1; page <= 9; ++page)
        for (const InsertMode mode :
             {InsertMode::AutoInsert, InsertMode::ManualCopy, InsertMode::NewPage})
            wanted.insert(DescribePage({page, page}, mode).HelpContext);
    for (const int number : wanted)
        EXPECT_NE(FindTopic(book, number), nullptr) << number;
}

} // namespace
} // namespace orvane::testing
