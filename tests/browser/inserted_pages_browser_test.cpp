#include "delivery/preview_form.h"
#include "disk/disk_file_store.h"
#include "effects/text/status_bar_ticker.h"
#include "tests/support/expect_text.h"
#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"
#include "tests/support/test_folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace orvane::testing {
namespace {

constexpr TextView replaceQuestion =
    u"Orvane has found existing code for this special effect in your Web page.  Do you want to "
    u"replace it?";

const std::string beginMarker =
    "<!-- ***** Begin:Varlo Status Bar Scroller special effect ***** -->";
const std::string endMarker = "<!-- ***** End:Varlo Status Bar Scroller special effect ***** -->";

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

std::size_t CountOf(const std::string& words, const std::string& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
        ++count;
    return count;
}

/// The effect's code in a page, from its first marker through its last one.
std::string CodeIn(const std::string& page)
{
    const std::size_t begin = page.find(beginMarker);
    const std::size_t end = page.rfind(endMarker);
    EXPECT_NE(begin, std::string::npos);
    EXPECT_NE(end, std::string::npos);
    return begin < end && end != std::string::npos
               ? page.substr(begin, end + endMarker.size() - begin)
               : "";
}

/// The place of a tag, however its letters are written.
std::size_t PlaceOf(const std::string& tag, std::string page, std::size_t from)
{
    std::transform(page.begin(), page.end(), page.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return page.find(tag, from);
}

/// What two runs make of a page. Stays as it is: each run puts the character behind the head tag
/// there once more.
std::string TwiceInserted(const std::string& page, const std::string& code)
{
    const std::size_t inside = page.find('>', PlaceOf("<head", page, 0)) + 1;
    const std::size_t headEnd = PlaceOf("</head", page, inside);
    const std::size_t bodyTagEnd = page.find('>', PlaceOf("<body", page, headEnd));
    const std::string doubled = page.substr(inside, 1);
    return page.substr(0, inside) + doubled + "\r\n" + doubled + "\r\n" + code + "\r\n" +
           page.substr(inside, headEnd - inside) + "\r\n" +
           page.substr(headEnd, bodyTagEnd - headEnd) + " onload=\"scrollit_r2l(99)\" " +
           page.substr(bodyTagEnd);
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
protected:
    InsertedPagesBrowserTest()
    {
        m_desk.Settings.Put(u"Misc", u"HTMLEditor", u"Other", u"Orvane");
        m_folder.MakeFolder("program");
        m_folder.MakeFolder("site");
        m_desk.Core.ProgramFolder = m_folder.TextAt("program");
    }

    /// Leads the delivery wizard through an insertion into the page, answering each question so.
    void InsertTicker(TextView words, int yesAnswers)
    {
        PreviewForm form(m_bench, Generate(StatusBarTicker{Text(words)}), nullptr,
                         PreviewWindows());
        form.show();
        LetRun();
        Click(form, "cmdNext");
        Click(form, "cmdNext");
        m_desk.Dialogs.AnswerOpenFile(m_folder.TextAt("site/index.html"));
        Click(form, "cmdBrowse");
        for (int answer = 0; answer < yesAnswers; ++answer)
            m_desk.Dialogs.ExpectAsk(Text(replaceQuestion), true);
        Click(form, "cmdAutoInsert");
        EXPECT_EQ(WordsOf(form, "lblHeading"), u"Finished!");
    }

    std::string Page() { return m_folder.Get("site/index.html").value(); }

    FakeDesk m_desk;
    TestFolder m_folder;
    PosixCalls m_calls;
    DiskFileStore m_files{m_calls, m_folder.TextAt("state")};
    Workbench m_bench{.Core = m_desk.Core,
                      .Dialogs = m_desk.Dialogs,
                      .Files = m_files,
                      .Settings = m_desk.Settings,
                      .Shell = m_desk.Shell,
                      .Clipboard = m_desk.Clipboard,
                      .Pane = m_desk.Pane,
                      .Help = m_desk.Help,
                      .Version = u"1.2.3",
                      .StateFolder = m_folder.TextAt("state"),
                      .Today = [] { return Text(u"2024-05-31"); }};
};

TEST_P(InsertedPagesBrowserTest, KeepsThePageAndRunsTheTickerOfTheSecondRunAlone)
{
    const std::string original = BytesOf(GetParam());
    m_folder.Put("site/index.html", original);
    InsertTicker(u"Old news", 0);
    const std::string afterFirst = Page();
    InsertTicker(u"New: Grüße ♥", 1);

    const std::string page = Page();
    const std::string code = CodeIn(page);
    ExpectSameBytes(TwiceInserted(original, code), page);
    EXPECT_EQ(CountOf("function scrollit_r2l", page), 1u);
    EXPECT_EQ(CountOf("Old news", page), 0u);
    EXPECT_EQ(m_folder.Get("site/Backup of index.html"), afterFirst);
    EXPECT_EQ(m_folder.Get("state/first-backups/2024-05-31" + m_folder.At("site/index.html")),
              original);

    BrowserPage visited;
    visited.Load(page);
    EXPECT_EQ(visited.Value("document.querySelector('h1').textContent").toString().toStdString(),
              GetParam().Heading);
    EXPECT_NE(visited.Value("document.body.innerText")
                  .toString()
                  .toStdString()
                  .find(GetParam().LastWords),
              std::string::npos);
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
