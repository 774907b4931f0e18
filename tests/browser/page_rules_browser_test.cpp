#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"

#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

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

TEST(PageBoxesBrowserTest, AnswersComeBackAndAnEndlessRowOfAlertsCanBeStopped)
{
    BrowserPage page;
    page.Dialogs.AnswerBox({.Accepted = true, .Entered = u"Zoë"});
    page.Dialogs.AnswerBox({.Accepted = true});
    page.Dialogs.AnswerBox({.Accepted = true, .Stop = true});
    ExpectStatus(page,
                 "const name = prompt('Name?', 'Ann');"
                 "for (let i = 1; i < 100; i++) alert('Box ' + i + '\\nagain');"
                 "status = name + ', ' + confirm('More?') + prompt('More?', 'a')",
                 u"Zoë, falsenull");
    const std::vector<PageBox>& boxes = page.Dialogs.Boxes;
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[0].Words + boxes[0].Proposed, u"Name?Ann");
    EXPECT_EQ(boxes[1].Words, u"Box 1\nagain");
    EXPECT_FALSE(boxes[0].OffersStop);
    EXPECT_TRUE(boxes[1].OffersStop);

    page.Dialogs.AnswerBox({.Accepted = true});
    ExpectStatus(page, "alert('New page'); status = 'new'", u"new");
    EXPECT_FALSE(boxes[3].OffersStop);
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
TEST_P(PageFilesBrowserTest, ReadsOnlyWhatItIsGiven)
{
    for (const bool isLive : {false, true}) {
        BrowserPage outside;
        BrowserPage page;
        page.IsLive = isLive;
        outside.AddFile("there.gif", picture);
        page.AddFile("with blank#%.gif", picture);
        std::filesystem::create_directory(page.Path("state"));
        for (const char* file : {"earlier.gif", "state/kept.gif"})
            std::ofstream(page.Path(file)) << picture;

        const Text source =
            ReplaceAll(FromUtf8(GetParam().Source), u"OUTSIDE", FromUtf8(outside.Path("")));
        ExpectStatus(page,
                     "const image = new Image; image.onload = () => status = 'loaded';"
                     "image.onerror = () => status = 'blocked'; image.src = '" +
                         ToUtf8(source) + "'",
                     GetParam().Loads ? u"loaded" : u"blocked");
    }
}
INSTANTIATE_TEST_SUITE_P(
    , PageFilesBrowserTest,
    ::testing::Values(PictureCase{"Beside", "with%20blank%23%25.gif", true},
                      PictureCase{"InTheAddress",
                                  "data:image/gif;base64,R0lGODlhAQABAIAAAAAAAP///"
                                  "ywAAAAAAQABAAACAkQBADs=",
                                  true},
                      PictureCase{"Outside", "file://OUTSIDE/there.gif", false},
                      PictureCase{"OfAnotherEffect", "earlier.gif", false},
                      PictureCase{"BelowItsFolder", "state/kept.gif", false}),
    [](const auto& test) { return test.param.Name; });

/// A port of this machine that answers nobody and notices who calls, by TCP or UDP.
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
        EXPECT_EQ(bind(m_stream, plain, size), 0);
        EXPECT_EQ(listen(m_stream, 10), 0);
        getsockname(m_stream, plain, &size);
        EXPECT_EQ(bind(m_datagrams, plain, size), 0);
        Address = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    }
    ~ListeningServer()
    {
        close(m_stream);
        close(m_datagrams);
    }
    ListeningServer(const ListeningServer&) = delete;
    ListeningServer& operator=(const ListeningServer&) = delete;

    bool WasCalled() const
    {
        char byte = 0;
        return accept(m_stream, nullptr, nullptr) >= 0 || recv(m_datagrams, &byte, 1, 0) >= 0;
    }

    std::string Address;

private:
    int m_stream = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
    int m_datagrams = socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK, 0);
};

/// How many sockets of this machine have joined the group in which names of computers are asked
/// for.
int MembersOfNameGroup()
{
    int members = 0;
    std::ifstream groups("/proc/net/igmp");
    for (std::string group; groups >> group;)
        if (int users = 0; group == "FB0000E0" && groups >> users)
            members += users;
    return members;
}

class PageNetworkBrowserTest : public ::testing::TestWithParam<const char*>
{
};
TEST_P(PageNetworkBrowserTest, CallsNobody)
{
    for (const bool isLive : {false, true}) {
        const ListeningServer server;
        BrowserPage page;
        page.IsLive = isLive;
        const int members = MembersOfNameGroup();
        const Text body = ReplaceAll(FromUtf8(GetParam()), u"SERVER", FromUtf8(server.Address));
        page.Load("<script>const over = () => status = 'over'; setTimeout(over, 1000);</script>" +
                  ToUtf8(body));
        EXPECT_TRUE(WaitFor([&] { return page.Status() == u"over"; }));
        EXPECT_EQ(MembersOfNameGroup(), members);
        EXPECT_FALSE(server.WasCalled());
    }
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
        "<iframe name=fresh></iframe><script>for (const urls of ['stun:SERVER', 'turn:SERVER',"
        "'turn:SERVER?transport=tcp']) { const peer = new fresh.RTCPeerConnection({iceServers:"
        "[{urls, username: 'a', credential: 'b'}]}); peer.createDataChannel('a');"
        "peer.createOffer().then(offer => peer.setLocalDescription(offer)); }</script>",
        "<iframe name=fresh></iframe><script>const call = \"new WebTransport('https://SERVER/a')\";"
        "fresh.eval(call); new Worker(URL.createObjectURL(new Blob([call])));</script>",
        "<form action=http://SERVER/a method=post target=inner></form><iframe name=inner></iframe>"
        "<script>document.forms[0].submit();</script>"));

constexpr TextView webQuestion = u"The page leads out of the preview, to:\r\n\r\n"
                                 u"http://www.varlo.example/a%20b\r\n\r\n"
                                 u"Do you want to open it in your Web browser?";

TEST(PageLinksBrowserTest, OffersAddressesOutsideToTheAuthor)
{
    BrowserPage outside;
    BrowserPage page;
    outside.AddFile("there.desktop", "there");
    const std::string there = outside.Path("there.desktop");
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
    page.ClickOn("document.links[2]");
    ASSERT_TRUE(WaitFor([&] { return page.Dialogs.Said.size() == 1; }));
    EXPECT_EQ(page.Dialogs.Said[0],
              Join({u"The page leads to a file that the preview does not open:\r\n\r\n",
                    FromUtf8(there)}));
    page.ClickOn("document.links[3]");
    page.ClickOn("document.links[5]");
    ASSERT_TRUE(WaitFor([&] { return page.Dialogs.Said.size() == 2; }));
    EXPECT_EQ(page.Dialogs.Said[1], Join({u"The page leads to a file that is not there:\r\n\r\n",
                                          FromUtf8(page.Path("missing.html"))}));
    page.Dialogs.ExpectAsk(u"The page leads out of the preview, to:\r\n\r\n"
                           u"http://xn--vrlo-53d.example/%E2%80%AEmth\r\n\r\n"
                           u"Do you want to open it in your Web browser?",
                           false);
    page.Value("document.links[0].href = 'http://v\u0430rlo.example/\u202emth'");
    page.ClickOn("document.links[0]");
    EXPECT_TRUE(WaitFor([&] { return page.Dialogs.Asked.size() == 3; }));
    page.Value("document.links[0].href = 'http://a..b/'");
    page.ClickOn("document.links[0]");
    EXPECT_TRUE(WaitFor([&] { return page.Dialogs.Said.size() == 3; })) << "no address to show";
    page.ClickOn("document.links[4]");
    page.WaitUntil("document.body.className == 'clicked'");
    EXPECT_EQ(page.Value("document.body.firstChild.data").toString(), "here ");
    EXPECT_EQ(page.Shell.Opened,
              (Texts{u"http://www.varlo.example/a%20b", u"mailto:ann@varlo.example"}));
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
    for (const bool isLive : {false, true}) {
        BrowserPage page;
        page.IsLive = isLive;
        ExpectStatus(page, GetParam().Script, GetParam().Status);
    }
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
