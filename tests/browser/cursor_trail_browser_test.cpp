#include "effects/page/cursor_trail.h"
#include "insertion/new_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

TEST(CursorTrailBrowserTest, TakesThePlaceOfTheMouseFromImageToImage)
{
    BrowserPage page;
    page.AddFile("star.gif", GifBytes(16, 16));
    page.Load(NewPageBytes(Finish(Generate({.txtImage = u"star.gif", .Slider = 3}))) +
              "<p id='goal' style='position: absolute; left: 200px; top: 100px; margin: 0;"
              " width: 20px; height: 10px'></p>");
    page.WaitUntil("document.images.length === 3 && "
                   "Array.from(document.images).every(image => image.naturalWidth === 16)");
    page.MoveTo("goal");
    page.WaitUntil("aryLastKnownPos.join() === '115,220,115,220,115,220'");
    // The places are written into properties that this engine does not know, so that the visitor
    // sees no image move; where it shows them is not the script's doing.
    page.WaitUntil("document.all.imgTrail2.style.pixelLeft === 220");
    EXPECT_LT(page.Value("document.images[2].getBoundingClientRect().left").toInt(), 100);
}

} // namespace
} // namespace orvane::testing
