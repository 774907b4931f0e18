#include "help/help_book.h"

#include "core/help_viewer.h"
#include "delivery/delivery_flow.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
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
                                       "=== 7 Ü\n=== 0 Last\nend");
    ASSERT_EQ(book.size(), 3u);
    EXPECT_EQ(book[0].Number, 22);
    EXPECT_EQ(book[0].Title, u"Two words");
    EXPECT_EQ(book[0].Body, u"<p>a\n\n b</p>\n");
    EXPECT_EQ(book[1].Title, u"Ü");
    EXPECT_EQ(book[1].Body, u"");
    EXPECT_EQ(book[2].Body, u"end\n");
}

TEST(HelpBookTest, AMarkAndOtherLineEndsMakeNoDifference)
{
    const HelpBook book = ReadHelpBook("\xEF\xBB\xBF=== 1 A\r\nx\r\n=== 2 B\r\n");
    ASSERT_EQ(book.size(), 2u);
    EXPECT_EQ(book[0].Title, u"A");
    EXPECT_EQ(book[0].Body, u"x\n");
    EXPECT_EQ(book[1].Number, 2);
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

TEST(HelpBookTest, AnyBytesGiveTopicsWithNumbersAndOneLineTitles)
{
    const std::vector<std::string> pieces = {"=== ", "==", "12",        "7 ",
                                             " ",    "\n", "\r\n",      "A",
                                             "<",    "&",  "\xFF",      std::string(1, '\0'),
                                             "ä",    "-",  "9999999999"};
    std::mt19937 random(1);
    std::uniform_int_distribution<std::size_t> pick(0, pieces.size() - 1);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes = "=== 3 Seed\n";
        for (int i = 0; i < 30; ++i)
            bytes += pieces[pick(random)];
        for (const HelpTopic& topic : ReadHelpBook(bytes)) {
            EXPECT_GE(topic.Number, 0);
            EXPECT_EQ(Find(topic.Title, u"\n"), 0u);
            EXPECT_LE(ShownText(topic.Body).size(), topic.Body.size());
        }
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

TEST_F(DeliveredHelpTest, HoldsEveryTopicThatAWindowAsksFor)
{
    std::set<int> wanted = {help_topics::contents,
                            help_topics::mainWindow,
                            help_topics::preferences,
                            help_topics::editApplet,
                            help_topics::transfer,
                            21,
                            29,
                            34,
                            35,
                            36,
                            37,
                            38,
                            39,
                            46,
                            55};
    for (std::int16_t page = 1; page <= 9; ++page)
        for (const InsertMode mode :
             {InsertMode::AutoInsert, InsertMode::ManualCopy, InsertMode::NewPage})
            wanted.insert(DescribePage({page, page}, mode).HelpContext);
    for (const int number : wanted)
        EXPECT_NE(FindTopic(m_book, number), nullptr) << number;
}

TEST_F(DeliveredHelpTest, BeginsWithTheContentsAndUsesEachNumberOnce)
{
    ASSERT_FALSE(m_book.empty());
    EXPECT_EQ(m_book.front().Number, help_topics::contents);
    std::set<int> numbers;
    for (const HelpTopic& topic : m_book) {
        EXPECT_TRUE(numbers.insert(topic.Number).second) << topic.Number;
        EXPECT_FALSE(topic.Title.empty()) << topic.Number;
    }
}

TEST_F(DeliveredHelpTest, EveryLinkLeadsToATopic)
{
    for (const HelpTopic& topic : m_book)
        for (const std::string& link : Matches(topic, "href=\"([^\"]*)\"")) {
            ASSERT_TRUE(link.starts_with("topic:")) << topic.Number << ": " << link;
            EXPECT_NE(FindTopic(m_book, std::stoi(link.substr(6))), nullptr)
                << topic.Number << ": " << link;
        }
}

TEST_F(DeliveredHelpTest, EveryPictureLiesBesideTheBook)
{
    for (const HelpTopic& topic : m_book)
        for (const std::string& picture : Matches(topic, "<img src=\"([^\"]*)\""))
            EXPECT_TRUE(std::filesystem::exists(folder / picture))
                << topic.Number << ": " << picture;
}

TEST_F(DeliveredHelpTest, ClosesEveryTagThatItOpens)
{
    for (const HelpTopic& topic : m_book) {
        std::vector<std::string> open;
        for (const std::string& tag : Matches(topic, "<(/?[^\\s>]*)[^>]*>")) {
            if (tag == "img")
                continue;
            if (!tag.starts_with('/')) {
                open.push_back(tag);
                continue;
            }
            ASSERT_FALSE(open.empty()) << topic.Number << ": " << tag;
            EXPECT_EQ(tag, "/" + open.back()) << topic.Number;
            open.pop_back();
        }
        EXPECT_TRUE(open.empty()) << topic.Number << ": " << open.back();
    }
}

} // namespace
} // namespace orvane
