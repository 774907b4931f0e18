#include "effects/applet/image_effects.h"
#include "effects/page/slideshow.h"
#include "effects/text/status_bar_ticker.h"
#include "insertion/page_script.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

#include <QFile>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// The page with effects of all kinds, delivered one after the other with the page script.
std::string WithEffects(std::string page)
{
    const EffectPayload effects[] = {
        Generate(StatusBarTicker{u"Welcome to my page!"}),
        Generate(Slideshow{.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.gif"}},
                           .txtSlideDuration = u"1",
                           .chkRepeat = true}),
        Generate(ImageEffects{.EffectPicker = Text(imageEffectNames[0]),
                              .ImageFile = u"a.gif",
                              .ImageWidth = u"200",
                              .ImageHeight = u"100"}),
    };
    for (const EffectPayload& effect : effects) {
        FinishedPayload payload = Finish(effect);
        payload.RunsToday = true;
        const auto edit = EditPageAndScript(page, payload, [] { return true; });
        page = std::get<EditedPage>(edit).Bytes;
    }
    return page;
}

class PageScriptBrowserTest : public ::testing::TestWithParam<const char*>
{
};
TEST_P(PageScriptBrowserTest, AllEffectsOfADeliveredPageRunBesideTheAuthorsOwnOnload)
{
    const std::string delivered = WithEffects(
        GetParam() + std::string("<html><head><title>x</title></head>"
                                 "<body onload=\"window.own = 1\"><p>Hello</p></body></html>"));
    QFile script(QStringLiteral(":/runtime/orvane.js"));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const std::string bytes = script.readAll().toStdString();
    EXPECT_NE(PageScriptVersion(bytes), "");

    BrowserPage page;
    page.AddFile("a.gif", GifBytes(10, 10));
    page.AddFile("b.gif", GifBytes(20, 10));
    page.Load(delivered);
    page.WaitUntil("!window.orvane && oImg.src.endsWith('a.gif')"); // no script, no harm

    page.AddFile("orvane.js", bytes);
    page.Load(delivered);
    page.Value("window.place = css => [...document.querySelectorAll('*')]"
               ".map(e => e.shadowRoot && e.shadowRoot.querySelector(css)).find(e => e)");
    page.WaitUntil("window.own === 1");
    page.WaitUntil(
        "!!place('.shown') && place('.shown').textContent.includes('Welcome to my page!')");
    page.WaitUntil("oImg.src.endsWith('b.gif')");
    page.WaitUntil("place('canvas').getBoundingClientRect().width === 200");
}
INSTANTIATE_TEST_SUITE_P(, PageScriptBrowserTest, ::testing::Values("<!DOCTYPE html>", ""));

} // namespace
} // namespace orvane::testing
