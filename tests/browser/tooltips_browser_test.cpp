#include "effects/text/tooltips.h"
#include "insertion/new_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

const std::string shown = "getComputedStyle(box1).visibility === 'visible'";

/// A page with a tooltip, in whose free places the mouse finds nothing.
class TooltipsBrowserTest : public ::testing::Test
{
protected:
    void Load(const Tooltips& tooltip)
    {
        m_page.AddFile("photo.gif", GifBytes(60, 40));
        m_page.Load("<script>mouse = {}; onmousemove = at => mouse = {x: at.clientX, y: at.clientY}"
                    "</script><p id='free' style='position: absolute; left: 400px; top: 400px;"
                    " width: 20px; height: 20px'></p><br><br><br><br><br><br>" +
                    NewPageBytes(Finish(Generate(tooltip))));
        m_page.WaitUntil("document.readyState === 'complete'");
        EXPECT_EQ(m_page.Value(shown), QVariant(false));
    }

    /// Brings the box up over the element, tells how far it stands from the mouse and leaves it.
    std::string PlaceOver(const std::string& element)
    {
        m_page.MoveTo(element);
        m_page.WaitUntil(shown + " && mouse.x > 0");
        const QVariant place =
            m_page.Value("(box => [box.left - mouse.x, box.top - mouse.y, box.bottom - mouse.y,"
                         " box.width, box.height].join())(box1.getBoundingClientRect())");
        m_page.MoveTo("free");
        m_page.WaitUntil("!(" + shown + ")");
        return place.toString().toStdString();
    }

    BrowserPage m_page;
};

TEST_F(TooltipsBrowserTest, ComesUpBelowTheMouseOverAText)
{
    Load({.txtTooltipText = u"A fact",
          .cboFontStyle = u"Bold",
          .BGColor = u"rgb(255,255,192)",
          .txtTitleText = u"Title",
          .optHoverObject = HoverObject::Words,
          .txtMainText = u"Point here"});
    EXPECT_EQ(PlaceOver("document.querySelector('span')"), "10,20,72,152,52");
    EXPECT_EQ(m_page.Value("box1.textContent").toString(), QStringLiteral("TitleA fact"));
    EXPECT_EQ(m_page.Value("getComputedStyle(box1.lastChild).fontWeight").toInt(), 700);
    EXPECT_EQ(m_page.Value("getComputedStyle(box1).backgroundColor").toString(),
              QStringLiteral("rgb(255, 255, 192)"));
}

TEST_F(TooltipsBrowserTest, ComesUpAboveTheMouseOverAnImage)
{
    Load({.txtTooltipText = u"A picture",
          .chk3D = true,
          .cboDisplayLocation = Text(tooltipLocations[1]),
          .optHoverObject = HoverObject::Image,
          .txtImage = u"/pictures/photo.gif"});
    m_page.WaitUntil("document.images[0].naturalWidth === 60");
    EXPECT_EQ(PlaceOver("document.images[0]"), "10,-54,0,154,54");
}

} // namespace
} // namespace orvane::testing
