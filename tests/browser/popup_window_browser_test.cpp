#include "effects/page/popup_window.h"
#include "insertion/new_page.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

/// The page of a popup window, and the features that it was asked for.
void Load(BrowserPage& page, WhenToAppear when, TextView linkItem)
{
    page.AddFile("small.gif", GifBytes(40, 20));
    page.AddFile("help.html", "<script>opener.opened = name</script>");
    page.Load("<script>asked = []; realOpen = open; open = (...words) =>"
              " { asked.push(words[2]); return realOpen(...words) }</script>" +
              NewPageBytes(Finish(Generate({.optWhenToAppear = when,
                                            .txtLinkItem = Text(linkItem),
                                            .txtWindowName = u"help",
                                            .txtURL = u"help.html",
                                            .txtWidth = u"200",
                                            .txtHeight = u"150",
                                            .txtHorizLocation = u"30",
                                            .chkResizable = true}))));
}

void ExpectWindow(BrowserPage& page)
{
    page.WaitUntil("window.opened === 'help'");
    ASSERT_EQ(page.Windows().size(), 1u);
    EXPECT_EQ(page.Windows()[0]->size(), QSize(200, 150));
    EXPECT_EQ(page.Value("asked.join()").toString(),
              QStringLiteral("width=200,height=150,screenX=30,left=30,toolbar=no,status=no,"
                             "location=no,menubar=no,directories=no,scrollbars=no,resizable=yes"));
}

TEST(PopupWindowBrowserTest, OpensWithThePageOrOnAClickOnItsLinkOrImage)
{
    for (const auto& [when, item, element] :
         {std::tuple{WhenToAppear::OnLoad, u"", ""},
          {WhenToAppear::OnHyperlink, u"Open <b>help</b>", "document.links[0]"},
          {WhenToAppear::OnImage, u"small.gif", "document.images[0]"}}) {
        BrowserPage page;
        Load(page, when, item);
        page.WaitUntil("document.readyState === 'complete'");
        if (when != WhenToAppear::OnLoad) {
            EXPECT_TRUE(page.Windows().empty());
            page.ClickOn(element);
        }
        ExpectWindow(page);
    }
}

} // namespace
} // namespace orvane::testing
