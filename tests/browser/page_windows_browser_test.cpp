#include "program/qt_dialogs.h"
#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"

#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace orvane::testing {
namespace {

struct WindowCase
{
    const char* Name;
    const char* Open;
    const char* Close; ///< a script; empty: the Escape key
    QSize Size;
};
class PageWindowBrowserTest : public ::testing::TestWithParam<WindowCase>
{
};
TEST_P(PageWindowBrowserTest, OpensAndCloses)
{
    BrowserPage page;
    page.AddFile("other.html", "<script>opener.status = 'opened'</script>");
    page.Load(std::string("<script>") + GetParam().Open + "</script>");
    ASSERT_TRUE(WaitFor([&] { return page.Status() == u"opened"; }));
    ASSERT_EQ(page.Windows().size(), 1u);
    QWidget* window = page.Windows()[0];
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->size(), GetParam().Size);
    if (GetParam().Close == std::string())
        QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    else
        page.Value(GetParam().Close);
    EXPECT_TRUE(WaitFor([&] { return page.Windows().empty(); }, 3000));
}
INSTANTIATE_TEST_SUITE_P(
    , PageWindowBrowserTest,
    ::testing::Values(WindowCase{"ByItself", "w = open('other.html', 'w', 'width=200,height=150')",
                                 "w.close()", QSize(200, 150)},
                      WindowCase{
                          "ByEscape",
                          "open('', 'w').document.write('<script>opener.status = \"opened\"<'"
                          " + '/script>')",
                          "", QSize(480, 360)},
                      WindowCase{"ByItsPage", "w = open('other.html')",
                                 "w.setTimeout('close()', 10)", QSize(480, 360)}),
    [](const auto& test) { return test.param.Name; });

TEST(PageWindowsBrowserTest, CloseWithThePageAndShowNothingFromOutside)
{
    BrowserPage page;
    page.Dialogs.ExpectAsk(u"The page leads out of the preview, to:\r\n\r\n"
                           u"http://www.varlo.example/\r\n\r\n"
                           u"Do you want to open it in your Web browser?",
                           false);
    page.Load("<script>for (let i = 0; i < 30; i++) open('', 'w' + i);"
              "open('http://www.varlo.example'); status = 'opened'</script>");
    ASSERT_TRUE(WaitFor([&] { return page.Status() == u"opened"; }));
    EXPECT_EQ(page.Windows().size(), 10u);
    page.Load("<body>next");
    EXPECT_TRUE(page.Windows().empty());
    EXPECT_TRUE(WaitFor([&] { return page.Dialogs.Asked.size() == 1; }));
}

struct BoxCase
{
    const char* Name;
    const char* Popup; ///< runs in the popup once it is in front
    void (*Close)(QtPreviewPane&, QWidget& popup) = [](QtPreviewPane&, QWidget&) {};
    bool GoesAtOnce = true; ///< false: the engine tells nobody as long as the box stands
};

/// A page's popup that goes while a box stands over it.
class PopupUnderABoxBrowserTest : public ::testing::TestWithParam<BoxCase>
{
protected:
    QWidget* Popup() const { return m_pane.findChild<QWidget*>("PageWindow"); }

    void OpenPopup()
    {
        m_page.AddFile("popup.html", std::string("<script>setTimeout(() => {") + GetParam().Popup +
                                         "}, 500)</script>");
        m_pane.resize(640, 480);
        m_pane.show();
        ASSERT_FALSE(FaultIn(m_pane.Navigate({.Path = FromUtf8(m_page.Path("page.html")),
                                              .Bytes = "<script>open('popup.html')</script>",
                                              .Files = {u"popup.html"}})));
        ASSERT_TRUE(WaitFor([&] { return Popup() != nullptr; }));
        Popup()->activateWindow();
        ASSERT_TRUE(WaitFor([&] { return QApplication::activeWindow() == Popup(); }));
    }

    BrowserPage m_page;
    FakeSettings m_settings;
    QtDialogs m_dialogs{m_settings};
    QtPreviewPane m_pane{m_dialogs, m_page.Shell, m_page.Files};
    bool m_answered = false;
};
TEST_P(PopupUnderABoxBrowserTest, LeavesTheBoxToTheAuthor)
{
    OpenPopup();
    WhenInFront<QDialog>([&](QDialog&) {
        GetParam().Close(m_pane, *Popup());
        // Answered from the box's own event loop, which is where closed windows are freed.
        Poll([&](QWidget* front, bool mayWait) {
            const bool isGone = Popup() == nullptr || !Popup()->isVisible();
            if (isGone != GetParam().GoesAtOnce && mayWait)
                return false;
            EXPECT_EQ(isGone, GetParam().GoesAtOnce);
            m_answered = front->close();
            return true;
        });
    });
    if (GetParam().Name == std::string("File")) {
        EXPECT_EQ(m_dialogs.OpenFile({}), std::nullopt);
    }
    EXPECT_TRUE(WaitFor([&] { return m_answered && Popup() == nullptr; }, 20000));

    EXPECT_FALSE(FaultIn(m_pane.Navigate({.Path = FromUtf8(m_page.Path("page.html")),
                                          .Bytes = "<script>status = 'next'</script>"})));
    EXPECT_TRUE(WaitFor([&] { return WordsOf(m_pane, "lblPageStatus") == u"next"; }));
}

constexpr auto closeWindow = [](QtPreviewPane&, QWidget& popup) { popup.close(); };
constexpr auto crash = [](QtPreviewPane& pane, QWidget&) {
    kill(static_cast<pid_t>(pane.View()->RendererPid()), SIGKILL);
};
constexpr auto closeThenClear = [](QtPreviewPane& pane, QWidget& popup) {
    pane.Clear();
    popup.close();
};
INSTANTIATE_TEST_SUITE_P(
    , PopupUnderABoxBrowserTest,
    ::testing::Values(BoxCase{"File", "setTimeout(close, 500)"},
                      BoxCase{"Question",
                              "setTimeout(close, 500); location = 'http://www.varlo.example'"},
                      BoxCase{"QuestionCrash", "location = 'http://www.varlo.example'", crash},
                      BoxCase{"Alert", "alert('Hi')", closeWindow},
                      BoxCase{"AlertCrash", "alert('Hi')", crash, false},
                      BoxCase{"AlertClear", "alert('Hi')", closeThenClear},
                      BoxCase{"Prompt", "prompt('Hi')", closeWindow}),
    [](const auto& test) { return test.param.Name; });

} // namespace
} // namespace orvane::testing
