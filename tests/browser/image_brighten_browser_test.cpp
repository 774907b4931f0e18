#include "effects/applet/image_effects.h"
#include "insertion/new_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

/// A page with a faded image, whose browser is made to know the filters of the effect's days and
/// to remember what was set.
class ImageBrightenBrowserTest : public ::testing::Test
{
protected:
    void Show(ImageEffects effects)
    {
        effects.EffectPicker = u"Image Brighten";
        effects.ImageFile = u"sun.gif";
        m_page.AddFile("sun.gif", GifBytes(80, 60));
        m_page.Load(NewPageBytes(Finish(Generate(effects))));
        m_page.WaitUntil("document.images.length === 1 && document.images[0].complete");
        m_page.Value("document.images[0].width = document.images[0].height = 80;"
                     "document.body.insertAdjacentHTML('beforeend', '<p id=away>away</p>');"
                     "document.images[0].filters = {alpha: {seen: [30],"
                     " get opacity() { return this.seen[this.seen.length - 1]; },"
                     " set opacity(value) { this.seen.push(value); }}}; 0");
    }

    BrowserPage m_page;
};

const std::string seen = "document.images[0].filters.alpha.seen.join()";

TEST_F(ImageBrightenBrowserTest, BrightensAtOnceUnderTheMouseAndFadesBehindIt)
{
    Show({});
    m_page.MoveTo("document.images[0]");
    m_page.WaitUntil(seen + " === '30,100'");
    m_page.MoveTo("document.getElementById('away')");
    m_page.WaitUntil(seen + " === '30,100,30'");
}

TEST_F(ImageBrightenBrowserTest, BrightensStepByStepBehindALink)
{
    Show({.LinkOrColor = u"http://www.example.com/", .chkGradual = true, .SizeSlider = 15});
    m_page.MoveTo("document.images[0]");
    m_page.WaitUntil(seen + " === '30,45,60,75,90,105'");
    m_page.MoveTo("document.getElementById('away')");
    m_page.WaitUntil(seen + " === '30,45,60,75,90,105,30'");
}

} // namespace
} // namespace orvane::testing
