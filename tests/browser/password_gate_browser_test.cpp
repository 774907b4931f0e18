#include "effects/page/password_protection.h"
#include "insertion/new_page.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

TEST(PasswordGateBrowserTest, LetsTheRightPasswordThroughAndSendsOthersBack)
{
    // Going back is seen by a stand-in that stands before the gate.
    const std::string standIn = "<script>history.back = () => { seen = 'back' }</script>";
    const PasswordProtection gate{
        .optScheme = PasswordScheme::Script, .GatePassword = u"sesame", .GateUrl = u"secret.html"};
    for (const auto& [entered, seen] :
         {std::pair(u"sesame", "location.href.endsWith('secret.html')"),
          std::pair(u"mellon", "window.seen === 'back'")}) {
        BrowserPage page;
        page.AddFile("secret.html", "<p>secret</p>");
        page.Dialogs.AnswerBox({.Accepted = true, .Entered = entered});
        page.Open(standIn + NewPageBytes(Finish(Generate(gate)))); // it leaves before it is loaded
        page.WaitUntil(seen);
        EXPECT_EQ(page.Dialogs.Boxes.size(), 1u);
    }
}

} // namespace
} // namespace orvane::testing
