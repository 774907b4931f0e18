#include "core/file_names.h"
#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>

namespace orvane::testing {
namespace {

class LivePaneBrowserTest : public ::testing::Test
{
protected:
    LivePaneBrowserTest() { m_page.IsLive = true; }

    /// The color in the middle of what is on screen.
    QColor Color() { return m_page.Pane.grab().toImage().pixelColor(320, 200); }

    Text QuietLine()
    {
        return Find<QWidget>(m_page.Pane, "lblQuiet")->isVisible()
                   ? WordsOf(m_page.Pane, "lblQuiet")
                   : Text();
    }

    BrowserPage m_page;
};

TEST_F(LivePaneBrowserTest, NoBlankFrameComesBetweenTwoPicturesAndTheNewestOfManyWins)
{
    const QColor colors[] = {Qt::red, Qt::blue};
    const auto pageOf = [&](int i) {
        return "<body bgcolor=" + colors[i % 2].name().toStdString() + ">" + std::to_string(i);
    };
    m_page.Load(pageOf(0));
    ASSERT_TRUE(WaitFor([&] { return Color() == colors[0]; }));
    for (int i = 1; i < 40; ++i) {
        m_page.Open(pageOf(i));
        QElapsedTimer watch;
        for (watch.start(); watch.elapsed() < 20; LetRun()) {
            const QColor color = Color();
            ASSERT_TRUE(color == colors[0] || color == colors[1]) << color.name().toStdString();
        }
    }
    EXPECT_TRUE(WaitFor([&] { return m_page.Value("document.body.innerText") == "39"; }));
    EXPECT_LT(m_page.LiveShown, 40) << "no more than one is loaded at a time";
    EXPECT_TRUE(m_page.Files.Writes.empty()) << "a live page has no file";
}

TEST_F(LivePaneBrowserTest, OfAPageThatIsGoneNothingRunsOn)
{
    m_page.AddFile("other.html", "<script>const own = new BroadcastChannel('a');"
                                 "setInterval(() => own.postMessage('frame'), 5)</script>");
    m_page.Load("<body onbeforeunload='return false' onunload='open(\"other.html\"); alert(1)'>"
                "<iframe src=other.html></iframe>"
                "<script>const own = new BroadcastChannel('a'); window.name = 'first';"
                "sessionStorage.setItem(location.pathname, 1);"
                "setInterval(() => own.postMessage('page'), 5)</script>");
    m_page.ClickOn("document.body");
    m_page.Load(
        "<script>let heard = 0; setTimeout(() => {"
        "  new BroadcastChannel('a').onmessage = () => heard++;"
        "  setTimeout(() => status = heard + '|' + sessionStorage.getItem(location.pathname),"
        "             300); }, 300)</script>");
    EXPECT_TRUE(WaitFor([&] { return m_page.Status() == u"0|null"; })) << ToUtf8(m_page.Status());
    EXPECT_TRUE(m_page.Dialogs.Boxes.empty());
    EXPECT_TRUE(m_page.Windows().empty());
    EXPECT_EQ(QuietLine(), u"");
}

TEST_F(LivePaneBrowserTest, APageThatReloadsItselfIsShownAndLeft)
{
    m_page.Load("<body>x<script>setTimeout(() => location.reload(), 0)</script>");
    m_page.Load("<body>next");
    m_page.WaitUntil("document.body.innerText == 'next'");
}

TEST_F(LivePaneBrowserTest, BoxesAndWindowsAreALineUntilTheAuthorRunsThem)
{
    m_page.Load("<body>x<script>alert('Hello'); status = 'on'</script>");
    EXPECT_TRUE(WaitFor([&] { return m_page.Status() == u"on"; }));
    EXPECT_EQ(QuietLine(), u"The page shows a box: Hello");
    m_page.Dialogs.AnswerBox({.Accepted = true});
    Press(*Find<QWidget>(m_page.Pane, "lblRunIt"), Qt::Key_Return);
    EXPECT_TRUE(WaitFor([&] { return m_page.Dialogs.Boxes.size() == 1; }));
    EXPECT_TRUE(WaitFor([&] { return m_page.LiveShown == 2; }));
    m_page.Load("<body>x<script>open('', 'w'); location = 'http://www.varlo.example/'</script>");
    EXPECT_TRUE(WaitFor([&] { return QuietLine().starts_with(u"The page leads out"); }));
    EXPECT_TRUE(m_page.Windows().empty());
    EXPECT_FALSE(Find<QWidget>(m_page.Pane, "lblRunIt")->isVisible());
    m_page.Load("<body>x");
    EXPECT_EQ(QuietLine(), u"");
}

TEST_F(LivePaneBrowserTest, ALinkOfTheProgramsOwnIsToldAndLeadsNowhere)
{
    Text followed;
    QObject::connect(&m_page.Pane, &QtPreviewPane::OwnLinkFollowed,
                     [&](const Text& end) { followed = end; });
    m_page.Load("<body><a href='http://orvane.invalid/clock'>Clock</a>");
    m_page.ClickOn("document.querySelector('a')");
    EXPECT_TRUE(WaitFor([&] { return followed == u"clock"; }));
    EXPECT_TRUE(m_page.Dialogs.Boxes.empty());
}

TEST_F(LivePaneBrowserTest, ScrollsToTheEffectOnceAndStaysWhereTheAuthorScrolled)
{
    const std::string filler(5000000, ' ');
    const auto pageOf = [&](const char* words) {
        LivePage page = m_page.Live("<body>" + filler +
                                    "<div style='height: 3000px'></div><!-- ***** Begin:it's -->"
                                    "<script></script><b>" +
                                    words + "</b><div style='height: 3000px'>");
        page.Mark = u" ***** Begin:it's ";
        return page;
    };
    LivePage first = pageOf("first");
    first.ScrollsToMark = true;
    m_page.Pane.ShowLive(first);
    m_page.WaitUntil("document.querySelector('b').innerText == 'first'");
    const double place = m_page.Value("scrollY").toDouble();
    EXPECT_NEAR(place, 2800, 250);
    m_page.Value("scrollTo(0, 1234)");
    m_page.WaitUntil("scrollY == 1234");
    EXPECT_FALSE(WaitFor([] { return false; }, 200)) << "the view is told of it later";
    m_page.Pane.ShowLive(pageOf("second"));
    m_page.WaitUntil("document.querySelector('b').innerText == 'second'");
    EXPECT_EQ(m_page.Value("scrollY").toDouble(), 1234);
}

TEST_F(LivePaneBrowserTest, FramesThePartUnderTheMouseAndTellsWhereTheAuthorClicks)
{
    m_page.AddFile("frame.html", "<script>onclick = () => parent.status = 'frame'</script>");
    LivePage page = m_page.Live(
        "<!DOCTYPE html><style>* { margin: 0 } a, iframe { display: block; height: 60px }"
        "orvane-pointing { display: none !important }</style>"
        "<script>onclick = () => status = 1; onmousedown = () => alert(1)</script><body><div style='height: 60px'></div>"
        "<a href=frame.html data-orvane-part=0><b>x</b></a>"
        "<iframe src=frame.html data-orvane-part=1></iframe>"
        "<p style='margin-top: 20px; height: 60px' data-orvane-part=12></p>");
    page.TakesPointing = true;
    m_page.Pane.ShowLive(page);
    ASSERT_TRUE(WaitFor([&] { return m_page.LiveShown == 1; }));
    std::vector<PointedPlace> places;
    m_page.Pane.Pointed = [&](const PointedPlace& place) { places.push_back(place); };
    const auto grabbed = [&] { return m_page.Surface().grab().toImage(); };
    // Where the mouse is, where that is to be seen, and the place.
    const std::vector<std::tuple<int, int, PointedPlace>> rows = {
        {20, 61, {std::nullopt, false}}, {70, 70, {0, false}},  {110, 110, {0, true}},
        {170, 170, {1, true}},           {185, 170, {1, true}}, {210, 210, {12, false}},
        {400, 258, {std::nullopt, true}}};
    for (const auto& [y, seen, place] : rows) {
        QTest::mouseMove(&m_page.Surface(), {200, y});
        EXPECT_TRUE(WaitFor([&] { return grabbed().pixelColor(200, seen) != Qt::white; })) << y;
        QTest::mouseClick(&m_page.Surface(), Qt::LeftButton, {}, {200, y});
        EXPECT_TRUE(WaitFor([&] { return places.size() == 1; })) << y;
        EXPECT_EQ(std::exchange(places, {}), std::vector{place}) << y;
    }
    m_page.Value("document.querySelector('orvane-pointing').click()");
    EXPECT_EQ(m_page.Status(), u"");
    EXPECT_EQ(QuietLine(), u"");
    EXPECT_TRUE(places.empty()) << "the page cannot point itself";
}

TEST_F(LivePaneBrowserTest, AProcessThatDiesOrHangsIsTold)
{
    m_page.Load("<body>one");
    kill(static_cast<pid_t>(m_page.Pane.View()->RendererPid()), SIGKILL);
    ASSERT_TRUE(WaitFor([&] { return !m_page.Note().empty(); }));
    m_page.Load("<body>two");
    EXPECT_EQ(m_page.Note(), u"");
    m_page.WaitUntil("document.body.innerText == 'two'");
    m_page.Open("<body>three<script>while (true);</script>");
    ASSERT_TRUE(WaitFor([&] { return !m_page.Note().empty(); }, 40000));
    EXPECT_TRUE(
        m_page.Note().starts_with(u"The preview stopped working: the page no longer answered."));
    m_page.Load("<body>four");
    m_page.WaitUntil("document.body.innerText == 'four'");
}

TEST_F(LivePaneBrowserTest, LooksAtThePageAsTheAuthorWants)
{
    m_page.AddFile("a.css", "@media (prefers-reduced-motion: reduce) { b { color: #010203 } }");
    LivePage page =
        m_page.Live("<link rel=stylesheet href=a.css><body><b>x</b><script>"
                    "document.body.title = matchMedia('(prefers-reduced-motion)').matches"
                    " + '|' + innerWidth</script>");
    const auto shown = [&](const PaneView& view) {
        page.View = view;
        const int before = m_page.LiveShown;
        m_page.Pane.ShowLive(page);
        EXPECT_TRUE(WaitFor([&] { return m_page.LiveShown > before; }));
        return m_page
            .Value("document.body.title + '|' +"
                   "getComputedStyle(document.querySelector('b')).color")
            .toString();
    };
    shown({.Width = 390});
    EXPECT_EQ(shown({.Width = 390}), "false|390|rgb(0, 0, 0)");
    EXPECT_EQ(shown({.Width = 390, .HasReducedMotion = true}), "true|390|rgb(1, 2, 3)");
    shown({.Width = 1280});
    EXPECT_EQ(shown({.Width = 1280}), "false|1280|rgb(0, 0, 0)");
    page.Bytes = std::string("<body><script>status = 'script'</script>");
    shown({.RunsScript = false});
    EXPECT_EQ(m_page.Status(), u"");
    shown({});
    EXPECT_EQ(m_page.Status(), u"script");
}

TEST_F(LivePaneBrowserTest, LeavesTheFocusInTheField)
{
    QWidget window;
    QLineEdit field;
    QVBoxLayout rows(&window);
    field.setObjectName("field");
    field.setAccessibleName("Field");
    rows.addWidget(&field);
    rows.addWidget(&m_page.Pane);
    window.show();
    window.activateWindow();
    field.setFocus();
    m_page.Load("<input autofocus><script>focus(); document.querySelector('input').focus();"
                "setInterval(focus, 10)</script>");
    m_page.Load("<input autofocus><script>focus()</script>two");
    EXPECT_EQ(window.focusWidget(), &field);
    ExpectAccessible(window);
    rows.removeWidget(&m_page.Pane);
    m_page.Pane.setParent(nullptr);
}

TEST_F(LivePaneBrowserTest, AnAuthorsPageReadsItsFolderAndNothingElse)
{
    BrowserPage outside;
    outside.AddFile("a.js", "status += ' outside'");
    std::filesystem::create_directories(m_page.Path("site/sub/.git"));
    for (const char* file :
         {"site/a.js", "site/sub/b.js", "site/sub/.git/c.js", "site/d.cgi", "e.js"})
        std::ofstream(m_page.Path(file)) << "status += ' " << file << "'";
    LivePage page =
        m_page.Live("<script>status = ''</script><script src=a.js></script>"
                    "<script src=sub/b.js></script><script src=sub/.git/c.js></script>"
                    "<script src=d.cgi></script><script src=../e.js></script>"
                    "<script src=/1/a.js></script><script src=file://" +
                    outside.Path("a.js") + "></script><script>status += ' end'</script>");
    page.Folder = FromUtf8(m_page.Path("site/"));
    m_page.Pane.ShowLive(page);
    EXPECT_TRUE(WaitFor([&] {
        return m_page.Status() == u" site/a.js site/sub/b.js site/a.js end";
    })) << ToUtf8(m_page.Status());
}

} // namespace
} // namespace orvane::testing
