#include "preview/preview_page.h"

#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <tuple>

namespace orvane::testing {
namespace {

FinishedPayload PlainPayload(int kind)
{
    FinishedPayload payload{.Effect = {.Kind = static_cast<EffectKind>(kind),
                                       .HEADHTML = u"<script>head()</script>",
                                       .BODYHTML = u"<b>body</b>"},
                            .BODYAttribute = u" onLoad=\"go()\" "};
    payload.PreviewCode = payload.Effect.HEADHTML + u"\r\n" + payload.Effect.BODYHTML;
    return payload;
}

TEST(PreviewPageTest, ShowsTheEffectInBothBrowsers)
{
    for (const int kind : {4, 9, 16, 18, 23, 25, 28, 29, 35, 37, 38, 50}) {
        const std::string file = std::to_string(kind) + ".html";
        SCOPED_TRACE(file);
        const FinishedPayload payload = PlainPayload(kind);
        ExpectSameText(ExpectedText("preview_page_inline_" + file),
                       PreviewPageText(payload, PreviewMode::Inline));
        ExpectSameText(ExpectedText("preview_page_browser_" + file),
                       PreviewPageText(payload, PreviewMode::Browser1));
    }
}

TEST(PreviewPageTest, SpeaksOfABlockAsItRunsToday)
{
    for (const int kind : {25, 35, 37}) {
        FinishedPayload payload = PlainPayload(kind);
        payload.Effect.IsBlock = true;
        const Text page = PreviewPageText(payload, PreviewMode::Inline);
        for (const TextView old : {u"does not display it", u"varlo_quake", u"cannot", u"Explorer"})
            EXPECT_EQ(Find(page, old), 0u) << kind;
        EXPECT_NE(Find(page, payload.Effect.HEADHTML), 0u);
        EXPECT_NE(Find(page, Join({payload.Effect.BODYHTML, u"<p>"})), 0u);
    }
}

TEST(PreviewPageTest, SaysThatAServerScriptCannotBeTestedHere)
{
    FinishedPayload payload = PlainPayload(24);
    payload.Effect.HEADHTML.clear();
    payload.Effect.BODYHTML = u"<form action='PASSWORD.cgi'></form>";
    payload.PreviewCode = u"\r\n" + payload.Effect.BODYHTML;
    ExpectSameText(ExpectedText("preview_page_cgi_inline.html"),
                   PreviewPageText(payload, PreviewMode::Inline));
    ExpectSameText(ExpectedText("preview_page_cgi_browser.html"),
                   PreviewPageText(payload, PreviewMode::Browser1));
}

/// Previews in the author's browser.
class BrowserLaunchTest : public ::testing::Test
{
protected:
    bool Launch() { return LinkToBrowser(m_desk.Bench, PlainPayload(4), PreviewMode::Browser1); }

    Text StoredBrowser() { return m_desk.Settings.Get(u"Apps", u"Browser", u"none", u"Orvane"); }
    void Override() { m_desk.Settings.Put(u"Apps", u"Override", u"1", u"Orvane"); }

    FakeDesk m_desk;
    const Text m_page = u"/program/ov-prvw.htm";
};

TEST_F(BrowserLaunchTest, OpensThePageWithTheDesktopUnlessOverridden)
{
    m_desk.Shell.Browser = u"/usr/bin/browser";
    EXPECT_FALSE(Launch());
    EXPECT_EQ(m_desk.Shell.Opened, Texts{m_page});
    EXPECT_EQ(StoredBrowser(), u"/usr/bin/browser");
    EXPECT_TRUE(m_desk.Files.Contents.contains(m_page));
    EXPECT_TRUE(m_desk.Pane.IsFileLeft);
}

TEST_F(BrowserLaunchTest, CutsTheCommandBehindExeAndDropsItsQuotes)
{
    Override();
    m_desk.Shell.Browser = u"\"c:\\web\\b.exe\" -home.exe";
    EXPECT_FALSE(Launch());
    EXPECT_EQ(StoredBrowser(), u"c:\\web\\b.exe");
    EXPECT_EQ(m_desk.Shell.Started,
              (std::vector<std::pair<Text, Text>>{{u"c:\\web\\b.exe", m_page}}));
}

TEST_F(BrowserLaunchTest, StartsTheBrowserThatWasChosenWhereTheDesktopTellsNone)
{
    m_desk.Dialogs.AnswerOpenFile({});
    EXPECT_FALSE(Launch());
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).Title, u"Select Browser...");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).FilterIndex, 2);
    const Texts words = m_desk.Dialogs.TakeSaid();
    ASSERT_EQ(words.size(), 2u) << "the way to one is shown";
    EXPECT_EQ(words[0], u"Browser statement not found in Windows Registry.\r\n"
                        u"Select the file/path of the browser you wish to use.");
    EXPECT_TRUE(words[1].starts_with(u"If no Web browser opens now, choose one"));

    m_desk.Dialogs.AnswerOpenFile(u"/opt/b");
    for (const std::size_t starts : {1u, 2u}) {
        EXPECT_FALSE(Launch());
        EXPECT_EQ(m_desk.Shell.Started.size(), starts);
    }
    EXPECT_EQ(m_desk.Shell.Started[1], std::pair(Text(u"/opt/b"), m_page));
    EXPECT_EQ(m_desk.Shell.Opened, Texts{m_page}) << "before one was chosen";
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{words[0]});

    m_desk.Settings.Put(u"Apps", u"Browser", u"default browser", u"Orvane");
    EXPECT_FALSE(Launch());
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{words[1]});
}

TEST_F(BrowserLaunchTest, FailedStartOffersThePreferences)
{
    Override();
    m_desk.Settings.Put(u"Apps", u"Browser", u"/gone", u"Orvane");
    m_desk.Shell.Starts = false;
    for (const bool answer : {false, true}) {
        m_desk.Dialogs.ExpectAsk(
            u"Could not locate browser using the specified path/filename found in the "
            u"Windows Registry.  Check your Preference settings.  Would you like to "
            u"view your settings now?",
            answer);
        EXPECT_EQ(Launch(), answer);
    }
    EXPECT_EQ(m_desk.Dialogs.Titles.at(0), u"Incorrect Browser path/filename");
}

TEST_F(BrowserLaunchTest, SaysWhyThePreviewPageCannotBeWritten)
{
    m_desk.Files.FailOn(m_page, Fault::DiskFull);
    EXPECT_FALSE(Launch());
    EXPECT_FALSE(LinkToBrowser(m_desk.Bench, {}, PreviewMode::Inline));
    EXPECT_EQ(m_desk.Dialogs.Said,
              (Texts{u"Disk full", u"There is no code in the preview window.  Cannot "
                                   u"preview the special effect."}));
    EXPECT_TRUE(m_desk.Shell.Opened.empty());
}

TEST(ReadableFilesTest, AreTheOnesThatTheEffectNeedsOrNames)
{
    FakeDesk desk;
    for (const TextView name :
         {u"orvane.js", u"A.class", u"B.class", u"x.gif", u"max.gif", u"y.gif", u"z.gif",
          u"needed b.gif", u"password.cgi", u"settings/orvane.ini"})
        desk.Files.Contents[Join({u"/program/", name})] = "";
    FinishedPayload payload = PlainPayload(24);
    payload.Effect.Required.RequiredFileNames = {u"needed b.gif", u"password.cgi"};
    payload.Effect.SupportFiles[0] = u"A.class";
    payload.Effect.BODYHTML =
        u"<img src=max.gif><a href='password.cgi'>a/y.gif</a>|z.gif|settings/";
    std::ignore = LinkToBrowser(desk.Bench, payload, PreviewMode::Inline);
    EXPECT_EQ(desk.Pane.Pages.at(0).Files,
              (Texts{u"A.class", u"max.gif", u"needed b.gif", u"orvane.js", u"z.gif"}));

    for (const TextView page : {u"/program/ov-prvw.htm", u"/program/ov-pane.htm"})
        desk.Files.Contents[Text(page)] = "left by a killed program";
    RemovePreviewPages(desk.Files, desk.Core);
    EXPECT_EQ(desk.Files.Contents.size(), 10u);
}

TEST(PreviewNoteTest, SaysWhatThePaneCannotShowAndWhatIsMissing)
{
    FakeDesk desk;
    FinishedPayload payload = PlainPayload(1);
    payload.Effect.BODYHTML = u"<b>x</b><applet code=A.class></applet>";
    payload.Effect.Required.RequiredFileNames[2] = u"gone.gif";
    payload.Effect.Required.RequiredFileNames[4] = u"there.gif";
    payload.Effect.SupportFiles[0] = u"A.class";
    desk.Files.Contents[u"/program/there.gif"] = "GIF89a";
    std::ignore = LinkToBrowser(desk.Bench, payload, PreviewMode::Inline);
    std::ignore = LinkToBrowser(desk.Bench, PlainPayload(9), PreviewMode::Inline);
    std::ignore = LinkToBrowser(desk.Bench, PlainPayload(4), PreviewMode::Inline);

    const std::vector<PanePage>& pages = desk.Pane.Pages;
    EXPECT_EQ(pages.at(0).Note,
              u"Today's browsers do not run Java applets.  Your page is right; visitors see the "
              u"effect in a browser that runs them.  Not found in /program: gone.gif, A.class.");
    EXPECT_TRUE(pages.at(1).RunsInStatus);
    EXPECT_EQ(pages.at(2).Note, u"");
    EXPECT_FALSE(pages.at(2).RunsInStatus);
}

} // namespace
} // namespace orvane::testing
