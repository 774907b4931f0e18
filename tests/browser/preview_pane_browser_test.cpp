#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace orvane::testing {
namespace {

TEST(PreviewPaneBrowserTest, DeletesThePageFileOnceItIsRead)
{
    BrowserPage page;
    page.AddFile("part.js", "window.status = 'part';");
    page.Load("<body>Hello<script src=part.js></script>");
    EXPECT_EQ(page.Files.Removals, std::vector{FromUtf8(page.Path("page.html"))});
    EXPECT_EQ(page.Status(), u"part");
    EXPECT_EQ(page.Value("document.body.innerText").toString(), "Hello");
    ExpectAccessible(page.Pane);
}

TEST(PreviewPaneBrowserTest, APageThatFollowsAtOnceIsNotDeletedUnread)
{
    BrowserPage page;
    for (const char* words : {"one", "two", "three"})
        page.Open(std::string("<body>") + words);
    page.WaitUntil("document.body.innerText == 'three'");
}

TEST(PreviewPaneBrowserTest, APageMayLoadItselfOnceMore)
{
    BrowserPage page;
    page.Load("<script>window.name += 'x'; window.status = window.name;</script>");
    page.Value("location.reload()");
    EXPECT_TRUE(WaitFor([&] { return page.Status() == u"xx"; }));
    EXPECT_TRUE(WaitFor([&] { return !page.PageFileExists(); }));
}

TEST(PreviewPaneBrowserTest, APageFileThatABrowserHasIsNeitherDeletedNorWrittenAgain)
{
    BrowserPage page;
    const auto browserHasIt = [&] {
        std::ifstream file(page.Path("page.html"));
        return std::string(std::istreambuf_iterator<char>(file), {}) == "the browser's";
    };
    page.Open("<body>Hello<script>status = 'first'</script>");
    page.Pane.LeaveFile();
    page.AddFile("page.html", "the browser's");
    EXPECT_TRUE(WaitFor([&] { return page.Status() == u"first"; }));
    page.Open("<body>Hello<script>status = 'second'</script>");
    EXPECT_TRUE(WaitFor([&] { return page.Status() == u"second"; }));
    page.Value("location.reload()");
    EXPECT_TRUE(WaitFor([&] { return page.Files.Removals.size() == 3; }));
    EXPECT_TRUE(browserHasIt());
    EXPECT_FALSE(std::filesystem::exists(page.Path("ov-pane.htm")));

    page.Pane.Clear();
    page.Load("<body>Next");
    EXPECT_FALSE(page.PageFileExists());
}

struct StatusCase
{
    const char* Name;
    const char* Page;
    TextView Status;
};
class PageStatusBrowserTest : public ::testing::TestWithParam<StatusCase>
{
};
TEST_P(PageStatusBrowserTest, ShowsWhatThePageWrites)
{
    BrowserPage page;
    page.Load(GetParam().Page);
    EXPECT_TRUE(WaitFor([&] { return page.Status() == GetParam().Status; }, 3000))
        << ToUtf8(page.Status());
}
INSTANTIATE_TEST_SUITE_P(
    , PageStatusBrowserTest,
    ::testing::Values(
        StatusCase{"Blanks", "<script>status = '  a  b ';</script>", u"  a  b "},
        StatusCase{"LineEnds", "<script>window.status = 'a\\r\\nb\\tc';</script>", u"a  b c"},
        StatusCase{"BeyondLatin", "<script>window.status = '\\u20ac\\ud83d\\ude00';</script>",
                   u"€😀"},
        StatusCase{"Frame", "<iframe srcdoc=\"<script>status = 'inner'</script>\"></iframe>",
                   u"inner"},
        StatusCase{"ReadBack", "<script>status = 7; status += 'x' + typeof status;</script>",
                   u"7xstring"},
        StatusCase{"NotTheConsole",
                   "<script>status = 'kept'; console.debug('=other'); console.log(1)</script>",
                   u"kept"}),
    [](const auto& test) { return test.param.Name; });

TEST(PreviewPaneBrowserTest, APageMayHaveAFunctionNamedStatus)
{
    BrowserPage page;
    page.Load("<script>function status() { return 'mine'; }</script>");
    EXPECT_EQ(page.Value("status()").toString(), "mine");
}

TEST(PreviewPaneBrowserTest, EmptiesTheStatusForTheNextPage)
{
    BrowserPage page;
    page.AddFile("next.html", "<body>next");
    page.Load("<script>window.status = 'first';</script><a href=next.html>on</a>");
    ASSERT_EQ(page.Status(), u"first");
    page.Value("document.links[0].click()");
    page.WaitUntil("document.body.innerText == 'next'");
    EXPECT_EQ(page.Status(), u"");
}

TEST(PreviewPaneBrowserTest, FontsAreThoseOfABrowser)
{
    BrowserPage page;
    page.Load("<style>span { font: 40px none; }</style>"
              "<span>The quick brown fox</span><br>"
              "<span style='font-family: Times New Roman'>The quick brown fox</span><br>"
              "<span style='font-family: sans-serif'>The quick brown fox</span><br>"
              "<span style='font-family: Arial'>The quick brown fox</span>");
    const QVariantList widths =
        page.Value("[...document.querySelectorAll('span')].map(words => words.offsetWidth)")
            .toList();
    ASSERT_EQ(widths.size(), 4);
    EXPECT_EQ(widths[0].toInt(), widths[1].toInt());
    EXPECT_EQ(widths[2].toInt(), widths[3].toInt());
}

TEST(PreviewPaneBrowserTest, ACrashedPageCanBeTriedAgain)
{
    BrowserPage page;
    page.Load("<body>Hello<script>status = 'up'</script>");
    ASSERT_GT(page.Pane.View()->RendererPid(), 0);
    kill(static_cast<pid_t>(page.Pane.View()->RendererPid()), SIGKILL);
    ASSERT_TRUE(WaitFor([&] { return !page.Note().empty(); }));
    EXPECT_EQ(page.Note(),
              u"The preview stopped working.  Click 'Try again' to load it once more.");

    Click(page.Pane, "cmdTryAgain");
    page.WaitUntil("document.body.innerText == 'Hello'");
    EXPECT_TRUE(WaitFor([&] { return page.Status() == u"up" && !page.PageFileExists(); }));
}

/// Dialogs whose boxes stay open for a while.
class SlowDialogs : public FakeDialogs
{
public:
    int AnswerAfterMs = 0;
    PageBoxReply Answer(const PageBox& box) override
    {
        EXPECT_FALSE(WaitFor([] { return false; }, AnswerAfterMs));
        return FakeDialogs::Answer(box);
    }
};

TEST(PreviewPaneBrowserTest, AHungPageOrWindowIsStoppedAndOneThatWaitsForTheAuthorIsNot)
{
    BrowserPage page;
    SlowDialogs slow;
    slow.AnswerAfterMs = 9500;
    slow.AnswerBox({.Accepted = true});
    QtPreviewPane waiting(slow, page.Shell, page.Files);
    EXPECT_FALSE(FaultIn(
        waiting.Navigate({.Path = FromUtf8(page.Path("box.html")),
                          .Bytes = "<script>alert('Wait'); status = 'went on';</script>"})));
    EXPECT_TRUE(WaitFor([&] { return WordsOf(waiting, "lblPageStatus") == u"went on"; }, 20000));

    BrowserPage opener;
    opener.AddFile("loop.html", "<script>while (true);</script>");
    opener.Open("<script>open('loop.html', '_blank', 'noopener')</script>");
    page.Open("<body>Hello<script>while (true);</script>");
    ASSERT_TRUE(WaitFor([&] { return !page.Note().empty() && !opener.Note().empty(); }, 40000));
    EXPECT_EQ(opener.Note(), page.Note());
    EXPECT_EQ(page.Note(), u"The preview stopped working: the page no longer answered.  "
                           u"Click 'Try again' to load it once more.");
    EXPECT_FALSE(page.PageFileExists());

    page.Load("<body>Other");
    EXPECT_EQ(page.Note(), u"");
    page.WaitUntil("document.body.innerText == 'Other'");
}

TEST(PreviewPaneBrowserTest, LeavesTheEngineAloneWhereItWouldEndTheProgram)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "the engine refuses root alone";
    const std::string former = qgetenv("QTWEBENGINE_DISABLE_SANDBOX").toStdString();
    unsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    BrowserPage page;
    page.Open("<body>Hello");
    setenv("QTWEBENGINE_DISABLE_SANDBOX", former.c_str(), 1);

    EXPECT_EQ(page.Pane.View(), nullptr);
    EXPECT_TRUE(page.Note().starts_with(u"The built-in preview does not run for the user root"));
    EXPECT_FALSE(page.PageFileExists());
}

} // namespace
} // namespace orvane::testing
