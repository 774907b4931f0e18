#include "delivery/preview_form.h"

#include "effects/text/status_bar_ticker.h"
#include "effects/text/status_bar_ticker_form.h"
#include "insertion/new_page.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "services/chosen_effects.h"
#include "services/recent_files.h"
#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace orvane {
namespace {

using namespace orvane::testing;

class PreviewFormTest : public ::testing::Test
{
protected:
    PreviewFormTest()
    {
        m_desk.Core.Payload = m_payload;
        Open();
    }

    void Open()
    {
        const PreviewWindows windows{.BringBack = [this](const Text& page) {
            m_broughtBack = page;
            return true;
        }};
        m_form = std::make_unique<PreviewForm>(m_desk.Bench, m_payload, nullptr, windows);
        m_form->show();
        LetRun();
    }

    Text Heading() { return WordsOf(*m_form, "lblHeading"); }

    void Choose(int insertMode)
    {
        Find<QRadioButton>(*m_form, ("optInsertMode(" + std::to_string(insertMode) + ")").c_str())
            ->click();
    }

    void KnowEditor(TextView name) { m_desk.Settings.Put(u"Misc", u"HTMLEditor", name, u"Orvane"); }
    Text KnownEditor() { return m_desk.Settings.Get(u"Misc", u"HTMLEditor", u"", u"Orvane"); }

    void ToMethodPage()
    {
        KnowEditor(u"Other");
        Click(*m_form, "cmdNext");
    }

    void ToNewPage()
    {
        ToMethodPage();
        Choose(2);
        Click(*m_form, "cmdNext");
        ASSERT_EQ(Heading(), u"Step 3: Create a new Web page");
    }

    /// Presses a key wherever the wizard left the focus.
    void PressWhereItStands(Qt::Key key)
    {
        m_form->activateWindow();
        QTest::keyClick(m_form->focusWidget(), key);
        LetRun();
    }

    /// The page's controls in the order in which Tab reaches them from the first one.
    std::vector<Text> TabStops(const char* first)
    {
        auto* start = Find<QWidget>(*m_form, first);
        std::vector<Text> names;
        QWidget* control = start;
        do {
            if (control->isVisible() && (control->focusPolicy() & Qt::TabFocus) != 0)
                names.push_back(FromQt(control->objectName()));
            control = control->nextInFocusChain();
        } while (control != start);
        return names;
    }

    FakeDesk m_desk;
    Text m_broughtBack;
    EffectPayload m_payload = Generate(StatusBarTicker{u"Welcome\u00A0to my\u2028page!"});
    std::unique_ptr<PreviewForm> m_form;
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

TEST_F(PreviewFormTest, KeepsTheChosenEditorForThisAndLaterRuns)
{
    Click(*m_form, "cmdNext");
    EXPECT_EQ(Heading(), u"Step 2: Select your Web page Editor");
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(Heading(), u"Step 3: Select Method for Inserting your Special Effect");
    EXPECT_EQ(KnownEditor(), u"") << "a row that has the focus alone was not chosen";
    Click(*m_form, "cmdPrevious");
    PressWhereItStands(Qt::Key_Space);
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(Heading(), u"Step 3: Select Method for Inserting your Special Effect");
    EXPECT_EQ(KnownEditor(), u"AOLPress");
    Click(*m_form, "cmdPrevious");
    EXPECT_EQ(Heading(), u"Step 1: Preview your special effect");
}

TEST_F(PreviewFormTest, StoredEditorIsNotReplacedByTheSelection)
{
    Find<QListWidget>(*m_form, "lstHTMLEditors")->setCurrentRow(3);
    ToMethodPage();
    EXPECT_EQ(Heading(), u"Step 2: Select Method for Inserting your Special Effect");
    EXPECT_EQ(KnownEditor(), u"Other");
}

TEST_F(PreviewFormTest, EveryPageIsAccessibleAndFits)
{
    KnowEditor(u"Other");
    for (const int mode : {0, 2, 1}) {
        Choose(mode);
        for (int page = 0; page < 4; ++page) {
            if (Find<QPushButton>(*m_form, "cmdNext")->isEnabled())
                Click(*m_form, "cmdNext");
            m_form->resize(640, 440);
            LetRun();
            ExpectAccessible(*m_form);
            EXPECT_EQ(m_form->size(), QSize(640, 440));
        }
        while (Heading() != u"Step 1: Preview your special effect")
            Click(*m_form, "cmdPrevious");
    }
}

TEST_F(PreviewFormTest, PagesForAnExistingAndForANewPageShowTheirOwnControls)
{
    ToMethodPage();
    Click(*m_form, "cmdNext");
    EXPECT_EQ(WordsOf(*m_form, "lblAutoStep1"),
              u"1. Find your Web page using the browse button below.");
    EXPECT_EQ(TabStops("txtFileName"),
              (std::vector<Text>{u"txtFileName", u"cmdBrowse", u"cmdAutoInsert", u"cmdHelp",
                                 u"cmdPrevious", u"cmdNext", u"cmdCancel"}));
    Click(*m_form, "cmdPrevious");
    Choose(2);
    Click(*m_form, "cmdNext");
    EXPECT_EQ(WordsOf(*m_form, "lblAutoStep1"),
              u"1. Save your new Web page by pressing the 'Save as New Web page' button below.");
    EXPECT_EQ(TabStops("cmdSaveWebPage"),
              (std::vector<Text>{u"cmdSaveWebPage", u"cmdHelp", u"cmdPrevious", u"cmdNext",
                                 u"cmdCancel"}));
    for (const char* name : {"lblBackupFile", "lblAutoStep2", "lblAutoStep3"})
        EXPECT_FALSE(Find<QWidget>(*m_form, name)->isVisible()) << name;
}

TEST_F(PreviewFormTest, NewPageHoldsTheEffectAndEndsTheWizard)
{
    m_payload = Generate(StatusBarTicker{u"Welcome to my page!"});
    m_form.reset();
    Open();
    ToNewPage();
    m_desk.Dialogs.AnswerSaveFile(u"/site/index.html");
    Click(*m_form, "cmdSaveWebPage");
    ExpectSameBytes(ExpectedBytes("status_bar_ticker_new_page.html"),
                    m_desk.Files.Contents.at(u"/site/index.html"));
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_EQ(ToQt(WordsOf(*m_form, "lblReport")).remove(QChar(0x200B)),
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
    m_desk.Dialogs.AnswerSaveFile(std::nullopt);
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(m_desk.Dialogs.Requests.size(), 1u);
    EXPECT_EQ(Heading(), u"Step 3: Create a new Web page");
    Click(*m_form, "cmdPrevious");
    Choose(0);
    Click(*m_form, "cmdNext");
    EXPECT_EQ(m_form->focusWidget()->objectName(), QStringLiteral("txtFileName"));
    PressWhereItStands(Qt::Key_Return);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u) << "the page's name is asked for";
    Click(*m_form, "cmdNext");
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_TRUE(WordsOf(*m_form, "lblReport").starts_with(u"Nothing was delivered"));
    EXPECT_FALSE(Find<QPushButton>(*m_form, "cmdOpenFolder")->isVisible());
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
    ToMethodPage();
    Choose(1);
    Click(*m_form, "cmdNext");
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
    EXPECT_EQ(WordsOf(*m_form, "lblReport"),
              u"HTML code copied for you to paste: HEAD, BODY attribute");
}

TEST_F(PreviewFormTest, ThePageScriptGoesWhereverTheEffectGoesOnceItIsWanted)
{
    const auto holdsLines = [](const std::string& page) {
        return page.find("<HEAD><!-- Begin Orvane page script -->") != std::string::npos;
    };
    const auto hasLines = [&](const Text& path) { return holdsLines(m_desk.Files.Contents[path]); };
    m_desk.Files.Contents[u"/program/orvane.js"] = "/*! Orvane page script 1.0.0 */";
    EXPECT_TRUE(
        WordsOf(*m_form, "lblRunsToday").ends_with(u"in a strip at the foot of the window."));
    EXPECT_FALSE(holdsLines(m_desk.Pane.Pages.back().Bytes));
    Click(*m_form, "chkRunsToday");
    EXPECT_TRUE(holdsLines(m_desk.Pane.Pages.back().Bytes));
    EXPECT_EQ(m_desk.Pane.Navigated.size(), 2u);

    m_form.reset();
    m_desk.Files.Folders = {u"/", u"/program"};
    m_payload.HEADHTML.clear();
    m_payload.BODYHTML = u"<P>";
    Open();
    EXPECT_TRUE(holdsLines(m_desk.Pane.Pages.back().Bytes)) << "the choice is kept";
    ToNewPage();
    m_desk.Dialogs.AnswerSaveFile(u"/site/index.html");
    Click(*m_form, "cmdSaveWebPage");
    EXPECT_TRUE(hasLines(u"/site/index.html"));
    EXPECT_TRUE(m_desk.Files.Contents.contains(u"/site/orvane.js"));
    EXPECT_EQ(Find<QListWidget>(*m_form, "lstFilesToUpload")->item(0)->text(),
              QStringLiteral("orvane.js"));
    while (Heading() != u"Step 2: Select Method for Inserting your Special Effect")
        Click(*m_form, "cmdPrevious");
    Choose(1);
    Click(*m_form, "cmdNext");
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
    EXPECT_TRUE(hasLines(u"/program/ovtemp.html"));
}

TEST_F(PreviewFormTest, BrowsingNamesTheBackup)
{
    ToMethodPage();
    Click(*m_form, "cmdNext");
    m_desk.Dialogs.AnswerOpenFile(u"/site/index.html");
    Click(*m_form, "cmdBrowse");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).Title, u"Browse...");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).FilterIndex, 2);
    EXPECT_EQ(WordsOf(*m_form, "txtFileName"), u"/site/index.html");
    EXPECT_EQ(WordsOf(*m_form, "lblBackupFile"),
              u"A backup copy of your Web page will be created and stored as \"Backup of "
              u"index.html\"");
    EXPECT_EQ(m_form->focusWidget()->objectName(), QStringLiteral("cmdAutoInsert"));
    Type(*m_form, "txtFileName", u"x");
    EXPECT_EQ(WordsOf(*m_form, "txtFileName"), u"/site/index.html");
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
}

TEST_F(PreviewFormTest, ADroppedPageIsTakenAsIfBrowsedAndNothingElse)
{
    const QTemporaryDir folder;
    const auto made = [&](const char* name) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return QUrl::fromLocalFile(file.fileName());
    };
    const QUrl page = made("a page.PHP");
    const QUrl other = made("a.gif");
    const auto drop = [&](const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        auto* box = Find<QWidget>(*m_form, "txtFileName");
        constexpr Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(box, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event({}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(box, &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "the page stays where it lies";
        return event.isAccepted();
    };
    ToNewPage();
    EXPECT_FALSE(drop({page}));
    Click(*m_form, "cmdPrevious");
    Choose(0);
    Click(*m_form, "cmdNext");
    for (const QList<QUrl>& refused : {QList<QUrl>{other},
                                       {page, other},
                                       {QUrl("http://x/a.html")},
                                       {QUrl::fromLocalFile(folder.path())}})
        EXPECT_FALSE(drop(refused));
    EXPECT_TRUE(drop({page}));
    LetRun();
    EXPECT_EQ(ToQt(WordsOf(*m_form, "txtFileName")), page.toLocalFile());
    EXPECT_TRUE(WordsOf(*m_form, "lblBackupFile").ends_with(u"\"Backup of a page.PHP\""));
    EXPECT_EQ(m_form->focusWidget()->objectName(), QStringLiteral("cmdAutoInsert"));
}

TEST_F(PreviewFormTest, RecentPagesAreOfferedUntilTheyAreGoneAndAnEarlierVersionComesBack)
{
    for (const TextView gone : {u"/gone.html", u"/site/a&b.html"})
        PutRecentFile(m_desk.Settings, u"Pages", gone);
    m_desk.Files.Contents[u"/site/a&b.html"] = "<head>12</head><body></body>";
    ToMethodPage();
    Click(*m_form, "cmdNext");
    ExpectAccessible(*m_form);
    QMenu* menu = Find<QPushButton>(*m_form, "cmdRecentPages")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().at(0)->text(), QStringLiteral("&1 /site/a&&b.html"));
    menu->actions().at(0)->trigger();
    Click(*m_form, "cmdAutoInsert");
    EXPECT_EQ(Heading(), u"Finished!");
    Click(*m_form, "cmdBringBack");
    EXPECT_EQ(m_broughtBack, u"/site/a&b.html");
    EXPECT_TRUE(WordsOf(*m_form, "lblReport").starts_with(u"Earlier version brought back"));
    EXPECT_FALSE(m_form->WasDelivered()) << "the author's entries are still wanted";
}

TEST_F(PreviewFormTest, UnloadingRemovesThePreviewPageAndEmptiesTheSharedCode)
{
    m_form.reset();
    EXPECT_FALSE(m_desk.Files.Contents.contains(u"/program/ov-prvw.htm"));
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
    road.OpenEffect(*FindCommand("mnuStatusBar"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(road.MainForm()->isVisible());
    EXPECT_EQ(desk.Core.Payload.HEADHTML, u"");
    EXPECT_EQ(RecentEffects(desk.Settings).front()->Kind, EffectKind::StatusBarTicker);
}

} // namespace
} // namespace orvane
