#include "core/effect.h"
#include "effects/page/all_in_one_button.h"
#include "effects/page/anti_spam_link.h"
#include "effects/page/password_protection.h"
#include "effects/page/pulldown_menu.h"
#include "effects/page/search_box.h"
#include "insertion/new_page.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

template <class Effect>
std::string PageOf(const Effect& effect)
{
    return NewPageBytes(Finish(PayloadOf(effect, {})));
}

TEST(PulldownMenuBrowserTest, TheButtonOpensTheChosenPageFromBothDisplays)
{
    for (const MenuDisplay display : {MenuDisplay::AllItems, MenuDisplay::Dropdown}) {
        BrowserPage page;
        page.AddFile("b.html", "<script>parent.postMessage('b is here', '*')</script>");
        page.Load(PageOf(PulldownMenu{.Items = {{u"A", u"a.html"}, {u"B", u"b.html"}},
                                      .optDisplay = display,
                                      .cboTarget = u"main"}) +
                  "<iframe name='main'></iframe><script>addEventListener('message', "
                  "event => { seen = event.data })</script>");
        EXPECT_EQ(page.Value("document.forms[0].elements[0].size").toInt(),
                  display == MenuDisplay::AllItems ? 2 : 0);
        page.Value("document.forms[0].elements[0].selectedIndex = 1");
        page.ClickOn("document.forms[0].Submit");
        page.WaitUntil("window.seen === 'b is here'");
    }
}

struct ActionCase
{
    ButtonAction Action;
    const char* StandIn; ///< set in the page before the click
    const char* Seen;    ///< true in the page behind it
};

TEST(AllInOneButtonBrowserTest, EachActionCallsWhatItShould)
{
    const ActionCase cases[] = {
        {ButtonAction::Link, "", "location.href.endsWith('next.html')"},
        {ButtonAction::Print, "window.print = () => { seen = 'print' }", "seen === 'print'"},
        {ButtonAction::Close, "window.close = () => { seen = 'close' }", "seen === 'close'"},
        // This engine is one that opens the sound itself.
        {ButtonAction::Sound, "", "location.href.endsWith('next.html')"},
        {ButtonAction::Favorites,
         "window.sidebar = { addPanel: (title, url) => { seen = title + '=' + url } }",
         "seen === 'My page=http://a.example/'"}};
    int type = 0;
    for (const auto& [action, standIn, seen] : cases) {
        SCOPED_TRACE(seen);
        BrowserPage page;
        page.AddFile("next.html", "<p>next</p>");
        page.Load(PageOf(
            AllInOneButton{.cboButtonAction = Text(buttonActions[static_cast<std::size_t>(action)]),
                           .optButtonType = static_cast<ButtonType>(type++ % 2),
                           .txtButtonText = u"Go",
                           .txtURL = u"next.html",
                           .txtBookmarkURL = u"http://a.example/",
                           .txtBookmarkTitle = u"My page"}));
        page.Value(standIn);
        page.ClickOn("document.querySelector('input, a')");
        page.WaitUntil(seen);
    }
}

TEST(AntiSpamLinkBrowserTest, TheAddressIsWholeOnlyInTheLocationThatItOpens)
{
    BrowserPage page;
    const std::string source = PageOf(
        AntiSpamLink{.Email = u"ann@mail.example", .MailToText = u"Write", .txtSubject = u"Hi"});
    EXPECT_EQ(source.find("ann@mail"), std::string::npos);
    EXPECT_EQ(source.find("mailto:"), std::string::npos);
    page.Load(source);
    // The script's text, with the location that it sets caught on its way.
    page.Value("SendEmail = eval('(' + SendEmail.toString().replace('window.location', 'seen') + "
               "')')");
    page.ClickOn("document.querySelector('a')");
    page.WaitUntil("window.seen === 'mailto:ann@mail.example?subject=Hi'");
}

TEST(SearchBoxBrowserTest, SubmitsTheRightQuery)
{
    const std::string caught = "document.forms[0].addEventListener('submit', event => {"
                               "event.preventDefault();"
                               "seen = event.target.action + '?' + new URLSearchParams(new "
                               "FormData(event.target)) })";
    BrowserPage search;
    search.Load(PageOf(SearchBox{.optSearch = SearchPlace::Site, .txtURL = u"mysite.example"}));
    search.Value(caught);
    search.Value("document.forms[0].q.value = 'two words'");
    search.ClickOn("document.forms[0].btnG");
    search.WaitUntil("window.seen === 'https://www.google.com/search?q=two+words&"
                     "as_sitesearch=mysite.example'");

    BrowserPage translate;
    translate.Load(PageOf(
        SearchBox{.Mode = Text(translateMode), .txtTranslateURL = u"http://a.example/x.html"}));
    translate.Value(caught);
    translate.Value("document.forms[0].langpair.selectedIndex = 1");
    translate.ClickOn("document.querySelector('input[type=submit]')");
    translate.WaitUntil("window.seen.startsWith('https://translate.google.com/translate?"
                        "u=http%3A%2F%2Fa.example%2Fx.html&langpair=en%7Cde&hl=en')");
}

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
        page.Open(standIn + PageOf(gate)); // it leaves before it is loaded
        page.WaitUntil(seen);
        EXPECT_EQ(page.Dialogs.Boxes.size(), 1u);
    }
}

} // namespace
} // namespace orvane::testing
