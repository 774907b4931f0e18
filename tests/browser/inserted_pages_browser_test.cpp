#include "effects/text/status_bar_ticker.h"
#include "insertion/page_edit.h"
#include "tests/support/qt_browser_page.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace orvane::testing {
namespace {

/// A page as an author has it, and what its visitor reads.
struct AuthorsPage
{
    const char* Name;
    const char* Heading; ///< in UTF-8
    const char* LastWords;
};

std::string BytesOf(const AuthorsPage& page)
{
    std::ifstream file(std::string(ORVANE_PAGES_FOLDER "/") + page.Name + ".html",
                       std::ios::binary);
    EXPECT_TRUE(file) << page.Name;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// The page with a ticker of these words; it replaces one that stands there.
std::string WithTicker(std::string_view page, TextView words)
{
    const auto edit =
        EditPage(page, Finish(Generate(StatusBarTicker{Text(words)})), [] { return true; });
    return std::get<EditedPage>(edit).Bytes;
}

/// A visitor sees the words move to the left in the status line.
void ExpectTicker(BrowserPage& page, TextView words)
{
    std::vector<std::size_t> places;
    EXPECT_TRUE(WaitFor([&] {
        const std::size_t place = page.Status().find(words);
        if (place != Text::npos && (places.empty() || places.back() != place))
            places.push_back(place);
        return places.size() == 4;
    })) << ToUtf8(page.Status());
    EXPECT_TRUE(std::is_sorted(places.rbegin(), places.rend()));
}

class InsertedPagesBrowserTest : public ::testing::TestWithParam<AuthorsPage>
{
};

TEST_P(InsertedPagesBrowserTest, KeepsThePageAndRunsTheTickerOfTheSecondRunAlone)
{
    const std::string original = BytesOf(GetParam());
    const std::string page = WithTicker(WithTicker(original, u"Old news"), u"New: Grüße ♥");
    std::size_t kept = 0; // bytes of the author's that stand in the page in their order
    for (const char byte : page)
        kept += kept < original.size() && byte == original[kept] ? 1 : 0;
    EXPECT_EQ(kept, original.size());
    EXPECT_EQ(page.find("Old news"), std::string::npos);
    EXPECT_EQ(page.find("function scrollit_r2l"), page.rfind("function scrollit_r2l"));

    BrowserPage visited;
    visited.Load(page);
    EXPECT_EQ(visited.Value("document.querySelector('h1').textContent").toString().toStdString(),
              GetParam().Heading);
    const std::string words = visited.Value("document.body.innerText").toString().toStdString();
    EXPECT_NE(words.find(GetParam().LastWords), std::string::npos);
    ExpectTicker(visited, u"New: Grüße ♥");
}

INSTANTIATE_TEST_SUITE_P(
    , InsertedPagesBrowserTest,
    ::testing::Values(AuthorsPage{"by_hand", "Grandpa's Tomatoes", "if you want seeds. © 2001"},
                      AuthorsPage{"doctype_and_css", "Café Müller – Menu",
                                  "Öffnungszeiten: täglich 9–18 Uhr ☕"},
                      AuthorsPage{"by_an_editor", "Our Holiday in Málaga",
                                  "“Sun, sea and churros” — that says it all."},
                      AuthorsPage{"shift_jis", "東京の散歩道", "作者: 山田ソラ"},
                      AuthorsPage{"comments_first", "The Chess Club of Upper Wicken",
                                  "We meet on Tuesdays at 7 > bring a board if you have one."}),
    [](const auto& test) { return test.param.Name; });

} // namespace
} // namespace orvane::testing
