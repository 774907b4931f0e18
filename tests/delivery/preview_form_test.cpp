#include "effects/page/page_transitions.h"
#include "effects/text/status_bar_ticker.h"
#include "effects/text/status_bar_ticker_form.h"
#include "insertion/new_page.h"
#include "insertion/page_script.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "services/chosen_effects.h"
#include "services/recent_files.h"
#include "tests/support/expect_text.h"
#include "tests/support/qt_delivery.h"
#include "tests/support/qt_mouse.h"
#include "tests/support/test_folder.h"

#include <QApplication>
#include <QListWidget>
#include <QMenu>

namespace orvane::testing {
namespace {

class PreviewFormTest : public DeliveryTest
{
protected:
    PreviewFormTest()
    {
        m_payload = Generate(StatusBarTicker{u"Welcome\u00A0to my\u2028page!"});
        m_windows.BringBack = [this](const Text& page) {
            m_broughtBack = page;
            m_desk.Files.Contents[page] = m_earlier;
            return true;
        };
        m_desk.Core.Payload = m_payload;
        Open();
    }

    Text KnownEditor() { return m_desk.Settings.Get(u"Misc", u"HTMLEditor", u"", u"Orvane"); }

    void ToNewPage()
    {
        Click(*m_form, "cmdNext");
        GoBy(2);
        ASSERT_EQ(Heading(), u"Step 3: Create a new Web page");
    }

    Text m_broughtBack;
    std::string m_earlier; ///< what the page that is brought back holds then
};

TEST_F(PreviewFormTest, OpensWithThePreviewOnItsFirstPage)
{
    m_desk.Shell.Browser = u"/usr/bin/browser";
    EXPECT_EQ(Heading(), u"Step 1: Preview your special effect");
    EXPECT_EQ(m_desk.Pane.Navigated, std::vector<Text>{u"/program/ov-prvw.htm"});
    Click(*m_form, "cmdRefresh");
    EXPECT_EQ(m_desk.Pane.Navigated.size(), 2u);
    Click(*m_form, "cmdPreview1");
    EXPECT_EQ(m_desk.Shell.Opened, std::vector<Text>{u"/program/ov-prvw.htm"});
}

TEST_F(PreviewFormTest, ThePageLoadsWhileTheWindowComesUpOnceTheBrowserIsThere)
{
    for (const bool isLoaded : {false, true}) {
        m_form.reset();
        m_desk.Pane.IsLoaded = isLoaded;
        m_desk.Pane.Navigated.clear();
        m_form = std::make_unique<PreviewForm>(m_desk.Bench, m_payload, nullptr, m_windows);
        m_form->show();
        EXPECT_EQ(m_desk.Pane.Navigated.size(), isLoaded ? 1u : 0u);
        LetRun();
        EXPECT_EQ(m_desk.Pane.Navigated.size(), 1u);
    }
}

TEST_F(PreviewFormTest, KeepsTheChosenEditorForThisAndLaterRuns)
{
    KnowEditor(u"");
    Open();
    Click(*m_form, "cmdNext");
    GoBy(1);
    EXPECT_EQ(Heading(), u"Step 3: Select your Web page Editor");
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(Heading(), u"Step 4: Insert HEAD HTML code into your Web page");
    EXPECT_EQ(KnownEditor(), u"") << "a row that has the focus alone was not chosen";
    Click(*m_form, "cmdPrevious");
    GoBy(1);
    PressWhereItStands(Qt::Key_Space);
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(Heading(), u"Step 5: Insert HEAD HTML code into your Web page");
    EXPECT_EQ(KnownEditor(), u"AOLPress");
    KnowEditor(u"Other");
    Click(*m_form, "cmdPrevious");
    EXPECT_EQ(KnownEditor(), u"Other") << "the selected row does not replace it";
}

TEST_F(PreviewFormTest, EveryPageIsAccessibleAndFits)
{
    for (const int mode : {0, 2, 1}) {
        GoBy(mode);
        for (int page = 0; page < 4; ++page) {
            m_form->resize(640, 440);
            LetRun();
            ExpectAccessible(*m_form);
            EXPECT_EQ(m_form->size(), QSize(640, 440));
            if (Find<QPushButton>(*m_form, "cmdNext")->isEnabled())
                Click(*m_form, "cmdNext");
        }
        while (Heading() != u"Step 1: Preview your special effect")
            Click(*m_form, "cmdPrevious");
    }
}

TEST_F(PreviewFormTest, ThePreviewGivesWayToWhatStandsBelowIt)
{
    struct : QWidget
    {
        QSize sizeHint() const override { return {800, 600}; }
    } pane;
    PreviewForm form(m_desk.Bench, m_payload, &pane, m_windows);
    form.resize(640, 440);
    form.show();
    LetRun();
    const auto* button = Find<QWidget>(form, "cmdPreview1");
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
    EXPECT_GT(pane.visibleRegion().boundingRect().height(), 60);
}

TEST_F(PreviewFormTest, NewPageHoldsTheEffectAndEndsTheWizard)
{
    m_payload = Generate(StatusBarTicker{u"Welcome to my page!"});
    Open();
    ToNewPage();
    m_desk.Dialogs.AnswerSaveFile(u"/site/index.html");
    Click(*m_form, "cmdSaveWebPage");
    ExpectSameBytes(ExpectedBytes("status_bar_ticker_new_page.html"),
                    m_desk.Files.Contents.at(u"/site/index.html"));
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_EQ(ToQt(WordsOf(*m_form, "lblReport")).remove(QChar(0x200B)).split(u'\n').at(1),
              QStringLiteral("Web page with the special effect in /site/: index.html"));
    Click(*m_form, "cmdOpenPage");
    Click(*m_form, "cmdOpenFolder");
    EXPECT_EQ(m_desk.Shell.Opened, (std::vector<Text>{u"/site/index.html", u"/site/"}));
    EXPECT_EQ(WordsOf(*m_form, "cmdCancel"), u"&Done");
    EXPECT_FALSE(Find<QPushButton>(*m_form, "cmdNext")->isEnabled());
    Click(*m_form, "cmdPrevious");
    Click(*m_form, "cmdPrevious");
    Click(*m_form, "cmdNext");
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(Heading(), u"Finished!") << "what is done leaves Enter to Next";
    PressWhereItStands(Qt::Key_Return);
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_EQ(m_form->End(), DeliveryEnd::Finished);
}

TEST_F(PreviewFormTest, EnterAllTheWayDoesTheWorkInsteadOfPassingIt)
{
    ToNewPage();
    EXPECT_EQ(WordsOf(*m_form, "lblAutoStep1"),
              u"1. Save your new Web page by pressing the 'Save as New Web page' button below.");
    for (const char* name : {"lblBackupFile", "lblAutoStep2", "lblAutoStep3"})
        EXPECT_FALSE(Find<QWidget>(*m_form, name)->isVisible()) << name;
    m_desk.Dialogs.AnswerSaveFile(std::nullopt);
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(m_desk.Dialogs.Requests.size(), 1u);
    EXPECT_EQ(Heading(), u"Step 3: Create a new Web page");
    Click(*m_form, "cmdPrevious");
    GoBy(0);
    EXPECT_EQ(WordsOf(*m_form, "lblAutoStep1"),
              u"1. Find your Web page using the browse button below.");
    EXPECT_EQ(Focused(), u"txtFileName");
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u) << "the page's name is asked for";
    Find<QPushButton>(*m_form, "cmdNext")->animateClick(); // as its key does
    Click(*m_form, "cmdNext");
    QTest::qWait(150);
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_EQ(WordsOf(*m_form, "lblReport"), u"Nothing was delivered: no Web page was written, no "
                                             u"HTML code was copied and no file was published.");
    EXPECT_FALSE(Find<QPushButton>(*m_form, "cmdOpenFolder")->isVisible());
}

TEST_F(PreviewFormTest, ThePageScriptGoesWhereverTheEffectGoesOnceItIsWanted)
{
    const auto holdsLines = [](const std::string& page) {
        return page.find("<HEAD><!-- Begin Orvane page script -->") != std::string::npos;
    };
    EXPECT_EQ(
        WordsOf(*m_form, "lblRunsToday"),
        u"Today's browsers show this effect only with Orvane's page script, in a strip at the "
        u"foot of the window.  Without it, the framed line below the preview shows the effect "
        u"here.");
    EXPECT_EQ(m_desk.Pane.Pages.back().Note, u"") << "one note is enough";
    EXPECT_FALSE(holdsLines(m_desk.Pane.Pages.back().Bytes));
    Click(*m_form, "chkRunsToday");
    EXPECT_TRUE(holdsLines(m_desk.Pane.Pages.back().Bytes));
    EXPECT_EQ(m_desk.Pane.Navigated.size(), 2u);

    m_desk.Files.Folders = {u"/", u"/program"};
    m_payload.HEADHTML.clear();
    m_payload.BODYHTML = u"<P>";
    Open();
    EXPECT_TRUE(holdsLines(m_desk.Pane.Pages.back().Bytes)) << "the choice is kept";
    Click(*m_form, "cmdNext");
    GoBy(1);
    EXPECT_EQ(Heading(), u"Step 3: Insert HEAD HTML code into your Web page");
    EXPECT_FALSE(Find<QWidget>(*m_form, "txtHEADHTML")->isVisible());
    ExpectAccessible(*m_form);
    Click(*m_form, "cmdCopyPageScript");
    EXPECT_EQ(m_desk.Clipboard.Content, u"<!-- Begin Orvane page script -->\r\n"
                                        u"<SCRIPT SRC=\"orvane.js\"></SCRIPT>\r\n"
                                        u"<!-- End Orvane page script -->");
    for (int page = 0; page < 3; ++page)
        Click(*m_form, "cmdNext");
    EXPECT_EQ(Heading(), u"Step 6: Publish required files to local hard drive");
    Click(*m_form, "cmdCopyFiles");
    EXPECT_TRUE(holdsLines(Bytes(u"/program/ovtemp.html")));
    Click(*m_form, "cmdNext");
    EXPECT_EQ(RowsOf(*m_form, "lstFilesToUpload"), std::vector<Text>{u"orvane.js"});

    m_payload.Kind = EffectKind::PulldownMenu;
    Open();
    EXPECT_FALSE(holdsLines(m_desk.Pane.Pages.back().Bytes)) << "it needs no page script";
    Click(*m_form, "chkRunsToday");
    Click(*m_form, "chkRunsToday");
    EXPECT_FALSE(holdsLines(m_desk.Pane.Pages.back().Bytes));

    m_payload = {.Kind = EffectKind::SmoothScroll, .BODYHTML = u"<div></div>", .IsBlock = true};
    Open();
    EXPECT_FALSE(holdsLines(m_desk.Pane.Pages.back().Bytes));
    EXPECT_FALSE(Find<QWidget>(*m_form, "chkRunsToday")->isVisible());
    EXPECT_EQ(WordsOf(*m_form, "lblRunsToday"), u"Runs in today's browsers by itself.");
}

TEST_F(PreviewFormTest, WhatWentInWithoutThePageScriptGetsItOnTheLastPage)
{
    m_payload.BODYHTML = u"<IMG SRC='img/new.gif'><IMG SRC='http://x/y.gif'>";
    m_windows.PickedFile = [](const Text& name) { return Text(u"/pics/") + name; };
    m_desk.Files.Folders = {u"/", u"/pics", u"/program", u"/site", u"/site/img"};
    m_desk.Files.Contents[u"/pics/new.gif"] = "picked";
    m_desk.Files.Contents[u"/program/orvane.js"] = "/*! Orvane page script 1.0 */";
    m_desk.Files.Contents[u"/site/a.html"] = "<head>1</head><body>2</body>";
    Open();
    Click(*m_form, "cmdNext");
    Click(*m_form, "cmdNext");
    m_desk.Dialogs.AnswerOpenFile(u"/site/a.html");
    Click(*m_form, "cmdBrowse");
    Click(*m_form, "cmdAutoInsert");
    const std::string before = Bytes(u"/site/a.html");
    ExpectAccessible(*m_form);
    EXPECT_TRUE(WordsOf(*m_form, "lblReport")
                    .starts_with(u"Today's browsers show this effect "
                                 u"only with Orvane's page script"));
    EXPECT_EQ(RowsOf(*m_form, "lstPageFiles"), (Texts{u"/site/a.html", u"img/new.gif: not there"}));
    Click(*m_form, "cmdRunsToday");
    EXPECT_EQ(Bytes(u"/site/a.html"), "<head>" + ToBytes(LinesOfPageScript()) +
                                          before.substr(std::string("<head>").size()));
    EXPECT_EQ(Bytes(u"/state/first-backups/2024-05-31 2/site/a.html"), before);
    EXPECT_EQ(Bytes(u"/site/Backup of a.html"), "<head>1</head><body>2</body>");
    EXPECT_FALSE(IsShown("cmdRunsToday"));
    EXPECT_EQ(RowsOf(*m_form, "lstFilesToUpload"), Texts{u"orvane.js"});

    Click(*m_form, "cmdCopyHere");
    EXPECT_EQ(Bytes(u"/site/img/new.gif"), "picked");
    EXPECT_EQ(RowsOf(*m_form, "lstPageFiles"),
              (Texts{u"/site/a.html", u"img/new.gif: there", u"orvane.js: there"}));
    EXPECT_FALSE(IsShown("cmdCopyHere"));
}

TEST_F(PreviewFormTest, FailedSaveSaysWhyAndStaysOnThePage)
{
    ToNewPage();
    m_desk.Files.FailOn(u"/full/p.html", Fault::DiskFull);
    m_desk.Dialogs.AnswerSaveFile(u"/full/p.html");
    Click(*m_form, "cmdSaveWebPage");
    EXPECT_EQ(m_desk.Dialogs.Said, std::vector<Text>{u"Disk full"});
    EXPECT_EQ(Heading(), u"Step 3: Create a new Web page");
}

TEST_F(PreviewFormTest, CopyPutsTheExactCodeOnTheClipboard)
{
    const FinishedPayload finished = Finish(m_payload);
    Click(*m_form, "cmdNext");
    GoBy(1);
    EXPECT_EQ(WordsOf(*m_form, "lblSubHeading"),
              u"Add the following HTML code to the HEAD section of your Web page.");
    Click(*m_form, "cmdCopyHEADHTML");
    ExpectSameText(finished.Effect.HEADHTML, m_desk.Clipboard.Content);
    Click(*m_form, "cmdNext");
    EXPECT_EQ(WordsOf(*m_form, "lblBODYAttribExample"),
              u"For example:  <BODY onLoad=\"scrollit_r2l(99)\" >");
    Click(*m_form, "cmdCopyBODYAttrib");
    EXPECT_EQ(m_desk.Clipboard.Content, u" onLoad=\"scrollit_r2l(99)\" ");
    Click(*m_form, "cmdNext");
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_TRUE(WordsOf(*m_form, "lblReport")
                    .ends_with(u"You did not copy its lines.\nHTML code copied for you to paste: "
                               u"HEAD, BODY attribute"));
}

TEST_F(PreviewFormTest, BrowsingNamesTheBackup)
{
    Click(*m_form, "cmdNext");
    Click(*m_form, "cmdNext");
    m_desk.Dialogs.AnswerOpenFile(u"/site/index.html");
    Click(*m_form, "cmdBrowse");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).Title, u"Browse...");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).FilterIndex, 2);
    EXPECT_EQ(WordsOf(*m_form, "txtFileName"), u"/site/index.html");
    EXPECT_EQ(WordsOf(*m_form, "lblBackupFile"),
              u"A backup copy of your Web page will be created and stored as \"Backup of "
              u"index.html\"");
    EXPECT_EQ(Focused(), u"cmdAutoInsert");
    Type(*m_form, "txtFileName", u"x");
    EXPECT_EQ(WordsOf(*m_form, "txtFileName"), u"/site/index.html");
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
}

TEST_F(PreviewFormTest, ADroppedPageIsTakenAsIfBrowsedAndNothingElse)
{
    const TestFolder folder;
    const Text page = folder.TextAt("a page.PHP");
    const Text other = folder.TextAt("a.gif");
    for (const char* name : {"a page.PHP", "a.gif"})
        folder.Put(name, "");
    const auto drop = [&](const std::vector<Text>& paths) {
        return DropFiles(*Find<QWidget>(*m_form, "txtFileName"), paths);
    };
    ToNewPage();
    EXPECT_FALSE(drop({page}));
    Click(*m_form, "cmdPrevious");
    GoBy(0);
    for (const std::vector<Text>& refused :
         {{other}, {page, other}, {u"http://x/a.html"}, std::vector{folder.TextAt("")}})
        EXPECT_FALSE(drop(refused));
    EXPECT_TRUE(drop({page}));
    EXPECT_EQ(WordsOf(*m_form, "txtFileName"), page);
    EXPECT_TRUE(WordsOf(*m_form, "lblBackupFile").ends_with(u"\"Backup of a page.PHP\""));
    EXPECT_EQ(Focused(), u"cmdAutoInsert");
}

TEST_F(PreviewFormTest, RecentPagesAreOfferedUntilTheyAreGoneAndAnEarlierVersionComesBack)
{
    for (const TextView gone : {u"/gone.html", u"/site/a&b.html"})
        PutRecentFile(m_desk.Settings, u"Pages", gone);
    m_desk.Files.Contents[u"/site/a&b.html"] = "<head>12</head><body></body>";
    Click(*m_form, "cmdNext");
    Click(*m_form, "cmdNext");
    ExpectAccessible(*m_form);
    QMenu* menu = Find<QPushButton>(*m_form, "cmdRecentPages")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().at(0)->text(), QStringLiteral("&1 /site/a&&b.html"));
    menu->actions().at(0)->trigger();
    Click(*m_form, "cmdAutoInsert");
    EXPECT_EQ(Heading(), u"Finished!");
    m_earlier = Bytes(u"/site/a&b.html") + "<P>";
    Click(*m_form, "cmdBringBack");
    EXPECT_EQ(m_broughtBack, u"/site/a&b.html");
    EXPECT_TRUE(m_form->WasDelivered()) << "that version holds the effect too";
    EXPECT_TRUE(IsShown("lstFilesToUpload"));
    m_earlier = "<head></head>";
    Click(*m_form, "cmdBringBack");
    EXPECT_EQ(ToQt(WordsOf(*m_form, "lblReport")).remove(QChar(0x200B)),
              QStringLiteral("Earlier version brought back: /site/a&b.html"));
    EXPECT_FALSE(IsShown("lstFilesToUpload"));
    EXPECT_EQ(Focused(), u"cmdCancel");
    EXPECT_FALSE(m_form->WasDelivered()) << "the author's entries are still wanted";
    Click(*m_form, "cmdPrevious");
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdAutoInsert")->isDefault());
    Click(*m_form, "cmdPrevious");
    GoBy(2);
    m_desk.Dialogs.AnswerSaveFile(u"/site/a&b.html");
    Click(*m_form, "cmdSaveWebPage");
    Click(*m_form, "cmdBringBack");
    Click(*m_form, "cmdPrevious");
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdSaveWebPage")->isDefault());
}

TEST_F(PreviewFormTest, TheEffectGoesFromTheLastPageIntoOthersAsWell)
{
    m_payload = Generate(PageTransitions());
    m_desk.Files.Contents[u"/web/b.html"] = "<head></head><body></body>";
    Open();
    Click(*m_form, "cmdNext");
    GoBy(1);
    Click(*m_form, "cmdNext");
    EXPECT_FALSE(IsShown("cmdPutIntoAnother")) << "it stands nowhere yet";
    Click(*m_form, "cmdPrevious");
    Click(*m_form, "cmdPrevious");
    GoBy(2);
    m_desk.Dialogs.AnswerSaveFile(u"/site/a.html");
    Click(*m_form, "cmdSaveWebPage");
    ExpectAccessible(*m_form);
    const auto putIntoAnother = [&](std::optional<Text> page) {
        m_desk.Dialogs.TakeSaid();
        m_desk.Dialogs.AnswerOpenFile(page);
        Find<QPushButton>(*m_form, "cmdPutIntoAnother")->setFocus();
        PressWhereItStands(Qt::Key_Space);
    };
    putIntoAnother(u"/web/b.html");
    EXPECT_EQ(Focused(), u"cmdCancel");
    putIntoAnother(std::nullopt);
    EXPECT_EQ(Heading(), u"Finished!");
    const QString report = ToQt(WordsOf(*m_form, "lblReport")).remove(QChar(0x200B));
    EXPECT_TRUE(report.startsWith(QStringLiteral("Web page with the special effect in /site/: "
                                                 "a.html\nWeb page with the special effect in "
                                                 "/web/: b.html\nA transition shows only between")))
        << report.toStdString();
    putIntoAnother(u"/gone.html");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_EQ(Heading(), u"Step 3: Auto-Insert the special effect in your Web page");
    EXPECT_EQ(WordsOf(*m_form, "txtFileName"), u"/gone.html");
    EXPECT_EQ(WordsOf(*m_form, "cmdCancel"), u"&Cancel");
    Click(*m_form, "cmdNext");
    EXPECT_EQ(Heading(), u"Finished!");
}

TEST_F(PreviewFormTest, UnloadingRemovesThePreviewPageAndTheLoginsScriptAndEmptiesTheSharedCode)
{
    m_payload = {.Kind = EffectKind::PasswordServer,
                 .BODYHTML = u"password.cgi",
                 .SupportFiles = {u"password.cgi"},
                 .MadeFiles = {{u"password.cgi", "secret", true}}};
    m_desk.Files.Contents[u"/program/password.cgi"] = "secret";
    Open();
    EXPECT_TRUE(m_desk.Files.Contents.contains(u"/program/password.cgi"));
    m_form.reset();
    EXPECT_FALSE(m_desk.Files.Contents.contains(u"/program/ov-prvw.htm"));
    EXPECT_FALSE(m_desk.Files.Contents.contains(u"/program/password.cgi"));
    EXPECT_EQ(m_desk.Core.Payload.HEADHTML, u"");
}

TEST(FormDeskTest, LeadsBackToTheWizardWithItsFieldAndOutOfBoth)
{
    FakeDesk desk;
    FormDesk road(desk.Bench, nullptr);
    road.Start();
    EXPECT_NE(desk.Core.WizardParam, u"");
    WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
        Type(wizard, "txtStatusBarText", u"one");
        WhenInFront<PreviewForm>([&](PreviewForm& preview) {
            EXPECT_EQ(desk.Core.Payload, Generate(StatusBarTicker{u"one"}));
            WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& again) {
                EXPECT_EQ(again.Parameters().txtStatusBarText, u"one");
                EXPECT_EQ(desk.Core.Payload.HEADHTML, u"");
                Press(*Find<QWidget>(again, "txtStatusBarText"), Qt::Key_A, Qt::ControlModifier);
                Type(again, "txtStatusBarText", u"two");
                WhenInFront<PreviewForm>([&](PreviewForm& second) {
                    EXPECT_EQ(desk.Core.Payload, Generate(StatusBarTicker{u"two"}));
                    second.reject();
                });
                Click(again, "cmdDone");
            });
            Click(preview, "cmdPrevious");
        });
        Click(wizard, "cmdDone");
    });
    road.OpenEffect(EffectKind::StatusBarTicker);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(road.MainForm()->isVisible());
    EXPECT_EQ(desk.Core.Payload.HEADHTML, u"");
    EXPECT_EQ(RecentEffects(desk.Settings).front()->Kind, EffectKind::StatusBarTicker);
}

} // namespace
} // namespace orvane::testing
