#include "effects/page/dynamic_button.h"
#include "insertion/new_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

TEST(DynamicButtonBrowserTest, SwapsItsPicturesOnOverDownUpAndOut)
{
    BrowserPage page;
    for (const std::string name : {"up", "over", "down"})
        page.AddFile(name + ".gif", GifBytes(80, 30));
    const DynamicButton button{.DefaultImage = u"up.gif",
                               .OverImage = u"over.gif",
                               .OverSound = u"hover.wav",
                               .ClickImage = u"down.gif",
                               .ClickSound = u"click.wav",
                               .LinkUrl = u"http://a.example/",
                               .LinkTarget = u"_blank"};
    page.Dialogs.ExpectAsk(u"The page leads out of the preview, to:\r\n\r\nhttp://a.example/"
                           u"\r\n\r\nDo you want to open it in your Web browser?",
                           true);
    page.Load(NewPageBytes(Finish(Generate(button, {.Clock = 45000.5}))) +
              "<p id='away' style='margin-top: 9em'>away</p>"
              "<script>left = []; new MutationObserver(changes => changes.forEach(change =>"
              " left.push(change.oldValue))).observe(document.images[0],"
              " {attributeFilter: ['src'], attributeOldValue: true})</script>");
    page.WaitUntil("document.images[0].naturalWidth === 80");
    const auto shows = [&](const std::string& name) {
        page.WaitUntil("document.images[0].complete && document.images[0].naturalWidth === 80 && "
                       "document.images[0].src.endsWith('/" +
                       name + "')");
    };
    page.MoveTo("document.images[0]");
    shows("over.gif");
    // Today's browsers know no such element, so nothing is heard; the script runs on nevertheless.
    EXPECT_EQ(page.Value("bgs5000.src").toString(), QStringLiteral("hover.wav"));
    page.ClickOn("document.images[0]");
    page.WaitUntil("left.join() === 'up.gif,over.gif,down.gif'");
    shows("over.gif");
    EXPECT_EQ(page.Value("bgs5000.src").toString(), QStringLiteral("click.wav"));
    EXPECT_TRUE(WaitFor([&] { return page.Shell.Opened.size() == 1; }));
    page.MoveTo("away");
    shows("up.gif");
}

} // namespace
} // namespace orvane::testing
