#include "effects/page/slideshow.h"
#include "insertion/new_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

/// A page with a show of three pictures, 10, 20 and 30 pixels wide.
class SlideshowBrowserTest : public ::testing::Test
{
protected:
    SlideshowBrowserTest()
    {
        for (const unsigned width : {10u, 20u, 30u}) {
            const std::string name = std::to_string(width) + ".gif";
            m_page.AddFile(name, GifBytes(width, 10));
            m_show.Rows.push_back({.FileName = FromUtf8(name)});
        }
    }

    void Load() { m_page.Load(NewPageBytes(Finish(Generate(m_show)))); }

    void Shows(int width)
    {
        m_page.WaitUntil("document.images[0].complete && document.images[0].width === " +
                         std::to_string(width));
    }

    bool IsDisabled(const std::string& button)
    {
        return m_page.Value("document.getElementById('" + button + "').disabled").toBool();
    }

    Slideshow m_show{.txtSlideDuration = u"1"};
    BrowserPage m_page;
};

TEST_F(SlideshowBrowserTest, StepsByItsTimerAndStopsAtTheLastSlideUnlessItLoops)
{
    Load();
    for (const int width : {10, 20, 30})
        Shows(width);
    m_page.Value("seen = 0; setTimeout(() => { seen = document.images[0].width }, 1500)");
    m_page.WaitUntil("seen === 30");
    m_show.chkRepeat = true;
    Load();
    for (const int width : {20, 30, 10})
        Shows(width);
}

TEST_F(SlideshowBrowserTest, StepsByItsButtons)
{
    m_show.chkDisplayControls = true;
    m_show.chkAutoStart = false;
    m_show.cmbTransitions = u"Wipe up"; // not shown by this engine, and no hindrance to it
    Load();
    // The buttons submit their form, which loads the page anew, so nobody sees their step for long.
    m_page.Value("document.form1.addEventListener('submit', event => event.preventDefault())");
    Shows(10);
    EXPECT_TRUE(IsDisabled("btnPrev"));
    m_page.ClickOn("btnNext");
    Shows(20);
    EXPECT_FALSE(IsDisabled("btnPrev"));
    m_page.ClickOn("btnNext");
    Shows(30);
    EXPECT_TRUE(IsDisabled("btnNext"));
    m_page.ClickOn("btnPrev");
    m_page.ClickOn("btnPrev");
    Shows(10);
    m_page.ClickOn("btnPlay");
    for (const int width : {20, 30})
        Shows(width);
}

} // namespace
} // namespace orvane::testing
