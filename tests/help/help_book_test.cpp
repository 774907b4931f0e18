#include "help/help_book.h"

#include "core/help_viewer.h"
#include "delivery/delivery_flow.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace orvane {
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

/// The book that is delivered.
class DeliveredHelpTest : public ::testing::Test
{
protected:
    DeliveredHelpTest()
    {
        std::ifstream file(folder / "orvane.hlp", std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        m_book = ReadHelpBook(bytes.str());
    }

    /// Every first group of the pattern in a topic's body.
    static std::vector<std::string> Matches(const HelpTopic& topic, const char* pattern)
    {
        const std::string body = ToUtf8(topic.Body);
        const std::regex regex(pattern);
        std::vector<std::string> found;
        for (std::sregex_iterator match(body.begin(), body.end(), regex), end; match != end;
             ++match)
            found.push_back((*match)[1]);
        return found;
    }

    const std::filesystem::path folder = ORVANE_HELP_FOLDER;
    HelpBook m_book;
};

TEST_F(DeliveredHelpTest, BeginsWithTheContentsAndHoldsOnceEveryTopicThatAWindowAsksFor)
{
    ASSERT_FALSE(m_book.empty());
    EXPECT_EQ(m_book.front().Number, help_topics::contents);
    std::set<int> numbers;
    for (const HelpTopic& topic : m_book)
        EXPECT_TRUE(numbers.insert(topic.Number).second) << topic.Number;
    std::set<int> wanted = {21, 29, 34, 35, 36, 37, 38, 39, 46, 55}; // inserting with an editor
    wanted.insert({help_topics::contents, help_topics::mainWindow, help_topics::preferences,
                   help_topics::editApplet, help_topics::transfer});
    for (std::int16_t page = 1; page <= 9; ++page)
        for (const InsertMode mode :
             {InsertMode::AutoInsert, InsertMode::ManualCopy, InsertMode::NewPage})
            wanted.insert(DescribePage({page, page}, mode).HelpContext);
    for (const int number : wanted)
        EXPECT_NE(FindTopic(m_book, number), nullptr) << number;
}

TEST_F(DeliveredHelpTest, EveryLinkLeadsToATopicAndEveryPictureLiesBesideTheBook)
{
    for (const HelpTopic& topic : m_book) {
        for (const std::string& link : Matches(topic, "href=\"([^\"]*)\"")) {
            ASSERT_TRUE(link.starts_with("topic:")) << topic.Number << ": " << link;
            EXPECT_NE(FindTopic(m_book, std::stoi(link.substr(6))), nullptr)
                << topic.Number << ": " << link;
        }
        for (const std::string& picture : Matches(topic, "<img src=\"([^\"]*)\""))
            EXPECT_TRUE(std::filesystem::exists(folder / picture)) << picture;
    }
}

} // namespace
} // namespace orvane
