#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"

#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvane::testing {
namespace {

/// Runs the script in a page and waits until the status line shows these words.
void ExpectStatus(BrowserPage& page, const std::string& script, TextView words)
{
    page.Load("<body><script>" + script + "</script>");
    EXPECT_TRUE(WaitFor([&] { return page.Status() == words; }))
        << script << " gives " << ToUtf8(page.Status());
}

TEST(PageBoxesBrowserTest, AnswersComeBackToThePage)
{
    BrowserPage page;
    page.Dialogs.AnswerBox({.Accepted = true});
    page.Dialogs.AnswerBox({.Accepted = false});
    page.Dialogs.AnswerBox({.Accepted = true, .Entered = u"Zoë"});
    page.Dialogs.AnswerBox({.Accepted = false, .Entered = u"typed"});
    page.Dialogs.AnswerBox({.Accepted = true, .Entered = u""});
    ExpectStatus(page,
                 "status = [confirm('Sure?'), confirm('Sure?'), prompt('Name?', 'Ann'),"
                 "          prompt('Name?'), '' + prompt('Name?')].join('|')",
                 u"true|false|Zoë||");
    ASSERT_EQ(page.Dialogs.Boxes.size(), 5u);
    EXPECT_EQ(page.Dialogs.Boxes[0].Shape, PageBox::Kind::Confirm);
    EXPECT_EQ(page.Dialogs.Boxes[2].Shape, PageBox::Kind::Prompt);
    EXPECT_EQ(page.Dialogs.Boxes[2].Words, u"Name?");
    EXPECT_EQ(page.Dialogs.Boxes[2].Proposed, u"Ann");
}

TEST(PageBoxesBrowserTest, AnEndlessRowOfAlertsCanBeStopped)
{
    BrowserPage page;
    page.Dialogs.AnswerBox({.Accepted = true});
    page.Dialogs.AnswerBox({.Accepted = true, .Stop = true});
    ExpectStatus(page,
                 "for (let i = 1; i < 100; i++) alert('Box ' + i + '\\nagain');"
                 "status = 'through, ' + confirm('More?') + prompt('More?', 'a')",
                 u"through, falsenull");
    ASSERT_EQ(page.Dialogs.Boxes.size(), 2u);
    EXPECT_EQ(page.Dialogs.Boxes[0].Words, u"Box 1\nagain");
    EXPECT_FALSE(page.Dialogs.Boxes[0].OffersStop);
    EXPECT_TRUE(page.Dialogs.Boxes[1].OffersStop);

    page.Dialogs.AnswerBox({.Accepted = true});
    ExpectStatus(page, "alert('New page'); status = 'new'", u"new");
    EXPECT_FALSE(page.Dialogs.Boxes[2].OffersStop);
}

/// A picture of one pixel.
constexpr std::string_view picture("GIF89a\1\0\1\0\x80\0\0\0\0\0\377\377\377,\0\0\0\0\1\0\1\0\0"
                                   "\2\2D\1\0;",
                                   35);

struct PictureCase
{
    const char* Name;
    const char* Source; ///< OUTSIDE stands for a folder beside the page's
    bool Loads;
};
class PageFilesBrowserTest : public ::testing::TestWithParam<PictureCase>
{
};
TEST_P(PageFilesBrowserTest, ReadsOnlyWhatLiesBelowItsFolder)
{
    BrowserPage outside;
    BrowserPage page;
    outside.AddFile("there.gif", picture);
    std::filesystem::create_directory(page.Path("sub"));
    for (const char* name : {"here.gif", "sub/here.gif", "with blank#%.gif"})
        page.AddFile(name, picture);
    std::filesystem::create_symlink(outside.Path("there.gif"), page.Path("link.gif"));
    std::filesystem::create_symlink(outside.Path(""), page.Path("linked"));
    std::filesystem::create_symlink("here.gif", page.Path("inner.gif"));

    const Text source =
        ReplaceAll(FromUtf8(GetParam().Source), u"OUTSIDE", FromUtf8(outside.Path("")));
    ExpectStatus(page,
                 "const image = new Image; image.onload = () => status = 'loaded';"
                 "image.onerror = () => status = 'blocked'; image.src = '" +
                     ToUtf8(source) + "'",
                 GetParam().Loads ? u"loaded" : u"blocked");
}
INSTANTIATE_TEST_SUITE_P(
    , PageFilesBrowserTest,
    ::testing::Values(PictureCase{"Beside", "here.gif", true},
                      PictureCase{"Below", "sub/../sub/here.gif", true},
                      PictureCase{"OddName", "with%20blank%23%25.gif", true},
                      PictureCase{"LinkInside", "inner.gif", true},
                      PictureCase{"InTheAddress",
                                  "data:image/gif;base64,R0lGODlhAQABAIAAAAAAAP///"
                                  "ywAAAAAAQABAAACAkQBADs=",
                                  true},
                      PictureCase{"Outside", "file://OUTSIDE/there.gif", false},
                      PictureCase{"Above", "../../OUTSIDE/there.gif", false},
                      PictureCase{"LinkOut", "link.gif", false},
                      PictureCase{"FolderLinkOut", "linked/there.gif", false}),
    [](const auto& test) { return test.param.Name; });

/// A server on this machine that answers nobody and notices who calls.
class ListeningServer
{
public:
    ListeningServer()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* plain = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(m_socket, plain, size), 0);
        EXPECT_EQ(listen(m_socket, 10), 0);
        getsockname(m_socket, plain, &size);
        Address = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    }
    ~ListeningServer() { close(m_socket); }
    ListeningServer(const ListeningServer&) = delete;
    ListeningServer& operator=(const ListeningServer&) = delete;

    bool WasCalled() const { return accept(m_socket, nullptr, nullptr) >= 0; }

    std::string Address;

private:
    int m_socket = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
};

class PageNetworkBrowserTest : public ::testing::TestWithParam<const char*>
{
};
TEST_P(PageNetworkBrowserTest, CallsNobody)
{
    const ListeningServer server;
    BrowserPage page;
    const Text body = ReplaceAll(FromUtf8(GetParam()), u"SERVER", FromUtf8(server.Address));
    page.Load("<script>const over = () => status = 'over'; setTimeout(over, 400);</script>" +
              ToUtf8(body));
    EXPECT_TRUE(WaitFor([&] { return page.Status() == u"over"; }));
    EXPECT_FALSE(server.WasCalled());
}
INSTANTIATE_TEST_SUITE_P(
    , PageNetworkBrowserTest,
    ::testing::Values(
        "<img src=http://SERVER/a.gif><link rel=stylesheet href=http://SERVER/a.css>"
        "<script src=http://SERVER/a.js></script><iframe src=http://SERVER/a.html></iframe>",
        "<link rel=preconnect href=http://SERVER><link rel=prefetch href=http://SERVER/a>"
        "<link rel=prerender href=http://SERVER/a>",
        "<script>fetch('http://SERVER/a', {mode: 'no-cors'}).catch(() => 0);"
        "navigator.sendBeacon('http://SERVER/a', 'x'); new EventSource('http://SERVER/a');</script>",
        "<script>new WebSocket('ws://SERVER/a');</script>",
        "<script>const peer = new RTCPeerConnection({iceServers: [{urls:"
        "'turn:SERVER?transport=tcp', username: 'a', credential: 'b'}]});"
        "peer.createDataChannel('a'); peer.createOffer().then(offer =>"
        "peer.setLocalDescription(offer));</script>",
        "<form action=http://SERVER/a method=post target=inner></form><iframe name=inner></iframe>"
        "<script>document.forms[0].submit();</script>"));

constexpr TextView webQuestion = u"The page leads out of the preview, to:\r\n\r\n"
                                 u"http://www.varlo.example/a b\r\n\r\n"
                                 u"Do you want to open it in your Web browser?";

TEST(PageLinksBrowserTest, OffersAddressesOutsideToTheAuthor)
{
    BrowserPage outside;
    BrowserPage page;
    outside.AddFile("there.html", "there");
    const std::string there = outside.Path("there.html");
    page.Load("<body>here <a href='http://www.varlo.example/a%20b'>web</a>"
              "<a href='mailto:ann@varlo.example'>mail</a><a href='file://" +
              there +
              "'>file</a><a href='chrome://version'>own</a>"
              "<a href='javascript:void(document.body.className = \"clicked\")'>script</a>"
              "<a href='missing.html'>missing</a>");
    page.Dialogs.ExpectAsk(Text(webQuestion), true);
    page.ClickOn("document.links[0]");
    ASSERT_TRUE(WaitFor([&] { return page.Dialogs.Asked.size() == 1; }));
    page.Dialogs.ExpectAsk(u"The page leads out of the preview, to:\r\n\r\n"
                           u"mailto:ann@varlo.example\r\n\r\n"
                           u"Do you want to open it in your e-mail program?",
                           true);
    page.ClickOn("document.links[1]");
    ASSERT_TRUE(WaitFor([&] { return page.Dialogs.Asked.size() == 2; }));
    page.Dialogs.ExpectAsk(Join({u"The page leads out of the preview, to:\r\n\r\n", FromUtf8(there),
                                 u"\r\n\r\nDo you want to open it in your Web browser?"}),
                           false);
    page.ClickOn("document.links[2]");
    ASSERT_TRUE(WaitFor([&] { return page.Dialogs.Asked.size() == 3; }));
    page.ClickOn("document.links[3]");
    page.ClickOn("document.links[5]");
    ASSERT_TRUE(WaitFor([&] { return !page.Dialogs.Said.empty(); }));
    EXPECT_EQ(page.Dialogs.Said[0], Join({u"The page leads to a file that is not there:\r\n\r\n",
                                          FromUtf8(page.Path("missing.html"))}));
    page.ClickOn("document.links[4]");
    page.WaitUntil("document.body.className == 'clicked'");
    EXPECT_EQ(page.Value("document.body.firstChild.data").toString(), "here ");
    EXPECT_EQ(page.Shell.Opened,
              (std::vector<Text>{u"http://www.varlo.example/a b", u"mailto:ann@varlo.example"}));
}

TEST(PageLinksBrowserTest, AScriptThatLeadsAwayAgainAndAgainAsksOnce)
{
    BrowserPage page;
    page.Dialogs.ExpectAsk(Text(webQuestion), false);
    ExpectStatus(page,
                 "let count = 0; setInterval(() => {"
                 "  location = 'http://www.varlo.example/a%20b';"
                 "  if (++count == 5) status = 'still here'; }, 20)",
                 u"still here");
    LetRun();
    EXPECT_EQ(page.Dialogs.Asked.size(), 1u);
}

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
    ExpectStatus(page, GetParam().Open, u"opened");
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
    page.Dialogs.ExpectAsk(Text(webQuestion), false);
    ExpectStatus(page,
                 "for (let i = 0; i < 30; i++) open('', 'w' + i);"
                 "open('http://www.varlo.example/a%20b'); status = 'opened'",
                 u"opened");
    EXPECT_EQ(page.Windows().size(), 10u);
    page.Load("<body>next");
    EXPECT_TRUE(page.Windows().empty());
    EXPECT_TRUE(WaitFor([&] { return page.Dialogs.Asked.size() == 1; }));
}

struct RuleCase
{
    const char* Name;
    const char* Script;
    TextView Status;
};
class PageRulesBrowserTest : public ::testing::TestWithParam<RuleCase>
{
};
TEST_P(PageRulesBrowserTest, GrantsSoundAndNothingBeyondThePage)
{
    BrowserPage page;
    ExpectStatus(page, GetParam().Script, GetParam().Status);
}
INSTANTIATE_TEST_SUITE_P(
    , PageRulesBrowserTest,
    ::testing::Values(
        RuleCase{"Sound",
                 "const silence = 'data:audio/wav;base64,UklGRoUJAABXQVZFZm10IBAAAAABAAEAQB8AAEAf"
                 "AAABAAgAZGF0YWEJAACA' + 'gICA'.repeat(800);"
                 "new Audio(silence).play().then(() => status = 'plays', error => status = error)",
                 u"plays"},
        RuleCase{"Place",
                 "navigator.geolocation.getCurrentPosition(() => status = 'told',"
                 "error => status = error.code)",
                 u"1"},
        RuleCase{"Notices", "Notification.requestPermission().then(answer => status = answer)",
                 u"denied"}),
    [](const auto& test) { return test.param.Name; });

} // namespace
} // namespace orvane::testing
