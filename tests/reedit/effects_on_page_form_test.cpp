#include "reedit/effects_on_page_form.h"

#include "core/effect_markers.h"
#include "delivery/preview_form.h"
#include "effects/text/status_bar_ticker_form.h"
#include "program/choose_effect_form.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "reedit/put_in_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace orvane::testing {
namespace {

std::string Block(TextView name, const std::string& code)
{
    const EffectMarkers markers = MarkersOf(name);
    return ToBytes(markers.Begin) + "\r\n" + code + "\r\n" + ToBytes(markers.End) + "\r\n";
}

const Text path = u"/site/a.html";
const std::string tail = "<p>mine</p>\r\n</body></html>";
const std::string head = "<html><head>\r\n<title>x</title></head>\r\n<body>\r\n";
const std::string slides = Block(u"Slideshow", "<img src=\"a.gif\"><img src=\"b.gif\">");
const std::string button = Block(u"Dynamic Button", "<img src=\"b.gif\">");
const std::string half = ToBytes(MarkersOf(u"Sound").Begin) + "\r\n";
const std::string page = head + slides + button + tail + half;

class EffectsOnPageFormTest : public ::testing::Test
{
protected:
    /// Shows the window with a page of these bytes.
    void Open(const std::string& bytes)
    {
        m_desk.Files.Contents[path] = bytes;
        m_page.GoTo(path);
        m_form.show();
        m_form.resize(1000, 600);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_form));
        m_list = Find<ActingList>(m_form, "lstPageEffects");
    }
    std::string& Bytes() { return m_desk.Files.Contents[path]; }
    const LivePage& Shown() const { return m_desk.Pane.Live.back(); }
    bool IsEnabled(const char* name) { return Find<QWidget>(m_form, name)->isEnabled(); }
    /// Moves the choice by a key and tells the line that is shown then.
    Text Choose(Qt::Key key)
    {
        Press(*m_list, key);
        return WordsOf(m_form, "lblEffect");
    }
    /// Prepares the answer to the question on the effect with that title in line 4.
    void AnswerTakeOut(TextView title, TextView file, bool answer)
    {
        m_desk.Dialogs.ExpectAsk(
            Join({u"Do you want to take \"", title, u"\" out of your Web page?\r\n\r\n",
                  u"What stands in the body, line 4 goes.  No file is deleted.\r\n\r\n",
                  u"Nothing else in the page needs these files: ", file}),
            answer);
    }

    FakeDesk m_desk;
    PageEffects m_page{m_desk.Files, m_desk.Dialogs, BackupsPlaceIn(u"/state", u"2024-05-31")};
    Texts m_scriptFolders;
    EffectsOnPageForm m_form{m_desk.Bench, m_page, nullptr,
                             [this](TextView folder) { m_scriptFolders.emplace_back(folder); }};
    ActingList* m_list = nullptr;
};

TEST_F(EffectsOnPageFormTest, ListsEachEffectAndScrollsThePageToTheChosenOne)
{
    Open(page);
    ExpectAccessible(m_form);
    EXPECT_EQ(m_form.focusWidget(), m_list);
    EXPECT_EQ(RowsOf(m_form, "lstPageEffects"),
              (Texts{u"Slideshow\nin the body, line 4 \u00B7 whole \u00B7 a.gif, b.gif",
                     u"Dynamic Button\nin the body, line 7 \u00B7 whole \u00B7 b.gif",
                     u"Sound Effect\nin the body, line 11 \u00B7 only half of it is there"}));
    EXPECT_EQ(m_list->item(1)->data(Qt::AccessibleTextRole).toString().toStdU16String(),
              u"Dynamic Button, in the body, line 7, whole, with the files b.gif.");
    EXPECT_FALSE(m_list->item(0)->icon().pixmap(32, 32).isNull());
    EXPECT_TRUE(Shown().Bytes.starts_with(head + "<!--" + ToUtf8(Shown().Mark) + "-->" + slides));
    EXPECT_EQ(Shown().Folder, u"/site/");
    EXPECT_EQ(Choose(Qt::Key_Down), u"");
    EXPECT_TRUE(IsEnabled("cmdTakeOut"));
    EXPECT_NE(Shown().Bytes.find("-->" + button), std::string::npos);
    EXPECT_TRUE(Choose(Qt::Key_Down).starts_with(u"One of the two comments"));
    EXPECT_FALSE(IsEnabled("cmdTakeOut"));
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), page);
    EXPECT_TRUE(m_desk.Dialogs.Asked.empty());
}

TEST_F(EffectsOnPageFormTest, TakesOutAfterOneQuestionAndBringsBackStepByStep)
{
    Open(page);
    AnswerTakeOut(u"Slideshow", u"a.gif", false);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), page);
    EXPECT_FALSE(IsEnabled("cmdBringBack"));
    AnswerTakeOut(u"Slideshow", u"a.gif", true);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), head + button + tail + half);
    EXPECT_EQ(m_desk.Files.Contents[u"/site/Backup of a.html"], page);
    EXPECT_EQ(Shown().Bytes.find("a.gif"), std::string::npos);
    EXPECT_EQ(m_form.focusWidget(), m_list);
    AnswerTakeOut(u"Dynamic Button", u"b.gif", true);
    Click(m_form, "cmdTakeOut");
    EXPECT_EQ(Bytes(), head + tail + half);
    QTest::keyClick(m_list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Bytes(), head + button + tail + half);
    QTest::keyClick(m_list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Bytes(), page);
    EXPECT_EQ(m_list->count(), 3);
    EXPECT_FALSE(IsEnabled("cmdBringBack"));
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());
}

TEST_F(EffectsOnPageFormTest, LeavesWhatAnotherProgramWroteMeanwhile)
{
    Open(page);
    AnswerTakeOut(u"Slideshow", u"a.gif", true);
    Press(*m_list, Qt::Key_Delete);
    // As long as the page, so that only its bytes tell.
    const std::string theirs = ReplaceAll(Bytes(), "mine", "hers");
    Bytes() = theirs;
    QTest::keyClick(m_list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Bytes(), theirs);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_FALSE(IsEnabled("cmdBringBack")) << "it would undo what they wrote";
    EXPECT_NE(Shown().Bytes.find("hers"), std::string::npos);

    Bytes() = "no effects";
    QEvent activation(QEvent::ActivationChange);
    QApplication::sendEvent(&m_form, &activation);
    EXPECT_EQ(m_list->count(), 0);
    EXPECT_EQ(WordsOf(m_form, "lblEffect"),
              u"No special effect of Orvane stands in this Web page.");
    m_desk.Files.Contents.clear();
    m_desk.Files.Folders = {u"/site"};
    m_desk.Dialogs.AnswerOpenFile(u"/site/gone.html");
    Click(m_form, "cmdBrowseForPage");
    EXPECT_EQ(WordsOf(m_form, "lblEffect"), u"File not found");
    EXPECT_TRUE(m_desk.Files.Contents.empty());
}

TEST_F(EffectsOnPageFormTest, PutsThePageScriptInAndTakesItOut)
{
    const std::string ticker = Block(u"Status Bar Scroller", "<script>go()</script>");
    const std::string bare = "<html><head></head><body>\n" + ticker + "</body>";
    Open(bare);
    auto* script = Find<QCheckBox>(m_form, "chkRunsToday");
    script->click();
    EXPECT_NE(Bytes().find("orvane.js"), std::string::npos);
    EXPECT_EQ(m_scriptFolders, Texts{u"/site/"});
    EXPECT_TRUE(RowsOf(m_form, "lstPageEffects").at(0).ends_with(u"\u00B7 orvane.js"));
    script->click();
    EXPECT_EQ(Bytes(), bare);
    script->click();
    m_desk.Dialogs.ExpectAsk(
        u"Do you want to take \"Status Bar Text Ticker\" out of your Web page?\r\n\r\n"
        u"What stands in the body, line 4 goes, and so do the lines of the page script.  No file "
        u"is deleted.\r\n\r\nNothing else in the page needs these files: orvane.js",
        true);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), "<html><head></head><body>\n</body>");
    EXPECT_FALSE(script->isVisible());

    Open(ticker);
    script->click();
    EXPECT_EQ(Bytes(), ticker);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u) << "there is no HEAD tag";
    EXPECT_FALSE(script->isChecked());
}

TEST(PageEffectsRoadOpeningTest, OpensByTheMenuByCtrlEAndByAPageThatIsDropped)
{
    FakeDesk desk;
    FormDesk road(desk.Bench, nullptr);
    road.Start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(road.MainForm()));
    QTemporaryDir folder;
    const Text dropped = FromQt(folder.filePath(QStringLiteral("a.html")));
    QFile file(ToQt(dropped));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    desk.Files.Contents[dropped] = page;
    Texts pages;
    const auto note = [&](EffectsOnPageForm& form) {
        pages.push_back(WordsOf(form, "txtPage"));
        EXPECT_EQ(Find<ActingList>(form, "lstPageEffects")->count(), pages.size() == 3 ? 3 : 0);
        form.reject();
    };
    WhenInFront<EffectsOnPageForm>(note);
    road.MainForm()->findChild<QAction*>(QStringLiteral("mnuPageEffects"))->trigger();
    road.MainForm()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(road.MainForm()));
    WhenInFront<EffectsOnPageForm>(note);
    QTest::keyClick(road.MainForm(), Qt::Key_E, Qt::ControlModifier);
    WhenInFront<EffectsOnPageForm>(note);
    EXPECT_TRUE(DropFiles(*road.MainForm(), {dropped}));
    QTRY_COMPARE(pages.size(), 3u);
    EXPECT_EQ(pages, (Texts{u"", u"", dropped}));
}

class PageEffectsRoadTest : public ::testing::Test
{
protected:
    PageEffectsRoadTest()
    {
        m_desk.Settings.Put(u"Misc", u"HTMLEditor", u"Other", u"Orvane");
        m_desk.Files.Folders = {u"/state", u"/site"};
        m_desk.Files.Contents[path] = bare;
        m_desk.Files.Contents[u"/program/orvane.js"] = "script";
        m_road.Start();
    }
    /// Puts a ticker with these words into the page as an author does.
    void Deliver(TextView words)
    {
        WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
            Type(wizard, "txtStatusBarText", words);
            WhenInFront<PreviewForm>([&](PreviewForm& preview) {
                m_desk.Dialogs.AnswerOpenFile(path);
                Click(preview, "cmdNext");
                Click(preview, "cmdNext");
                Click(preview, "cmdBrowse");
                Click(preview, "cmdAutoInsert");
                WhenInFront<EffectsOnPageForm>([](EffectsOnPageForm& list) {
                    EXPECT_EQ(WordsOf(list, "txtPage"), path);
                    list.reject();
                });
                Click(preview, "cmdPageEffects");
            });
            Click(wizard, "cmdDone");
        });
        m_road.OpenEffect(EffectKind::StatusBarTicker);
        m_desk.Dialogs.Said.clear();
    }
    /// Opens the first effect's wizard from the list, and leaves the list at the end.
    void Change(const std::function<void(StatusBarTickerForm& wizard)>& action)
    {
        WhenInFront<EffectsOnPageForm>([&](EffectsOnPageForm& list) {
            WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
                action(wizard);
                WhenInFront<EffectsOnPageForm>([](EffectsOnPageForm& again) { again.reject(); });
            });
            Press(*Find<ActingList>(list, "lstPageEffects"), Qt::Key_Return);
        });
        m_road.ShowPageEffects(path);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    static void Enter(StatusBarTickerForm& wizard, TextView words)
    {
        Press(*Find<QWidget>(wizard, "txtStatusBarText"), Qt::Key_A, Qt::ControlModifier);
        Type(wizard, "txtStatusBarText", words);
    }
    std::string& Bytes() { return m_desk.Files.Contents[path]; }

    const std::string bare = "<html><head></head>\n<body onload='mine()'>\n<p>x</p></body></html>";
    FakeDesk m_desk;
    FormDesk m_road{m_desk.Bench, nullptr};
};

TEST_F(PageEffectsRoadTest, ChangesAnEffectWithTheFieldsThatItWasDeliveredWith)
{
    Deliver(u"first words");
    const std::string before = Bytes();
    Change([&](StatusBarTickerForm& wizard) {
        EXPECT_EQ(wizard.Parameters().txtStatusBarText, u"first words");
        Enter(wizard, u"other words");
        WhenInFront<PutInForm>([&](PutInForm& first) {
            ExpectAccessible(first);
            WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& again) {
                Enter(again, u"last words");
                WhenInFront<PutInForm>([&](PutInForm& form) {
                    EXPECT_NE(m_desk.Pane.Live.back().Bytes.find("last words"), std::string::npos);
                    EXPECT_EQ(Bytes(), before);
                    Press(*form.focusWidget(), Qt::Key_Return);
                });
                Click(again, "cmdDone");
            });
            Click(first, "cmdPrevious");
        });
        Click(wizard, "cmdDone");
    });
    EXPECT_EQ(Bytes(), ReplaceAll(before, "first words", "last words"));
    EXPECT_EQ(m_desk.Files.Contents[u"/site/Backup of a.html"], before);
    EXPECT_EQ(m_desk.Dialogs.Said, Texts());
    Change([](StatusBarTickerForm& wizard) {
        EXPECT_EQ(wizard.Parameters().txtStatusBarText, u"last words");
        wizard.reject();
    });
}

TEST_F(PageEffectsRoadTest, AsksBeforeWhatItDoesNotKnowGetsLost)
{
    Deliver(u"words");
    const std::string mine = ReplaceAll(Bytes(), "</SCRIPT>", "  var mine = 1;\r\n</SCRIPT>");
    Bytes() = mine;
    for (const bool answer : {false, true}) {
        Change([&](StatusBarTickerForm& wizard) {
            EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
            EXPECT_EQ(wizard.Parameters().txtStatusBarText, u"");
            Enter(wizard, u"words");
            WhenInFront<PutInForm>([&](PutInForm& form) {
                m_desk.Dialogs.ExpectAsk(
                    u"Orvane does not know how this code in your Web page was made.  It gets lost "
                    u"when the special effect is put back:\r\n\r\nvar mine = 1;\r\n\r\n"
                    u"Do you want to replace it?",
                    answer);
                Click(form, "cmdPutBack");
                if (!answer)
                    form.reject();
            });
            Click(wizard, "cmdDone");
        });
        EXPECT_EQ(Bytes(), answer ? ReplaceAll(mine, "  var mine = 1;\r\n", "") : mine);
    }
}

TEST_F(PageEffectsRoadTest, FindsTheEffectWhereAnotherProgramMovedIt)
{
    Deliver(u"words");
    const std::string moved = ReplaceAll(Bytes(), "<html>", "<html lang=en>");
    Change([&](StatusBarTickerForm& wizard) {
        Enter(wizard, u"others");
        WhenInFront<PutInForm>([&](PutInForm& form) {
            Bytes() = moved;
            Click(form, "cmdPutBack");
            EXPECT_EQ(Bytes(), moved);
            EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
            Click(form, "cmdPutBack");
        });
        Click(wizard, "cmdDone");
    });
    EXPECT_EQ(Bytes(), ReplaceAll(moved, "words", "others"));
}

TEST_F(PageEffectsRoadTest, AddsAnEffectOfTheCatalogue)
{
    WhenInFront<EffectsOnPageForm>([&](EffectsOnPageForm& list) {
        WhenInFront<ChooseEffectForm>([&](ChooseEffectForm& choice) {
            WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
                Type(wizard, "txtStatusBarText", u"words");
                WhenInFront<PutInForm>([&](PutInForm& form) {
                    WhenInFront<EffectsOnPageForm>([&](EffectsOnPageForm& again) {
                        EXPECT_EQ(RowsOf(again, "lstPageEffects").size(), 1u);
                        again.reject();
                    });
                    Click(form, "cmdPutIn");
                });
                Click(wizard, "cmdDone");
            });
            Find<QToolButton>(choice, "cmdSpecialFX(9)")->click();
        });
        Click(list, "cmdAddEffect");
    });
    m_road.ShowPageEffects(path);
    EXPECT_NE(Bytes().find("words"), std::string::npos);
    EXPECT_NE(Bytes().find(";mine()"), std::string::npos);
}

TEST_F(PageEffectsRoadTest, OffersToPointWhereAutoInsertFindsNoPlace)
{
    const std::string rows[] = {"<!--" + std::string(40000, 'x') + "-->" + bare, "no tags at all"};
    for (const std::string& row : rows) {
        Bytes() = row;
        WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
            Type(wizard, "txtStatusBarText", u"words");
            WhenInFront<PreviewForm>([&](PreviewForm& preview) {
                m_desk.Dialogs.AnswerOpenFile(path);
                Click(preview, "cmdNext");
                Click(preview, "cmdNext");
                Click(preview, "cmdBrowse");
                EXPECT_FALSE(Find<LinkLabel>(preview, "lblPutByPointing")->isVisible());
                Click(preview, "cmdAutoInsert");
                EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
                WhenInFront<PutInForm>([&](PutInForm& form) {
                    if (row != rows[1])
                        return Click(form, "cmdPutIn");
                    EXPECT_FALSE(Find<QWidget>(form, "cmdPutIn")->isEnabled());
                    EXPECT_TRUE(WordsOf(form, "lblPutIn").find(u"BODY tag") != Text::npos);
                    form.reject();
                });
                auto* link = Find<LinkLabel>(preview, "lblPutByPointing");
                EXPECT_TRUE(link->isVisible());
                Press(*link, Qt::Key_Return);
            });
            Click(wizard, "cmdDone");
        });
        m_road.OpenEffect(EffectKind::StatusBarTicker);
        EXPECT_EQ(Bytes().find("words") != std::string::npos, row != rows[1]);
    }
}

TEST(PutInFormTest, PutsAnEffectBeforeOrBehindTheChosenPart)
{
    FakeDesk desk;
    std::string& bytes = desk.Files.Contents[path];
    bytes = "<html><head></head>\r\n<body onload='mine()'>\r\n<h1>Hel<b>lo</b></h1>\r\n"
            "<img src=a.gif>\r\n" +
            slides + "</body></html>";
    PageEffects host(desk.Files, desk.Dialogs, BackupsPlaceIn(u"/state", u"2024-05-31"));
    host.GoTo(path);
    const EffectPayload effect{.Kind = EffectKind::VerticalScroller,
                               .HEADHTML = u"<SCRIPT>function go(n) {}</SCRIPT>\r\n",
                               .BODYHTML = u"<b>new</b>\r\n",
                               .OnLoadFunc = u"go",
                               .OnLoadArgs = u"(1)"};
    PutInForm form(desk.Bench, host, {Finish(effect), host.Bytes()}, nullptr);
    form.show();
    form.resize(1000, 600);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    ExpectAccessible(form);
    EXPECT_EQ(
        RowsOf(form, "lstPlaces"),
        (Texts{u"At the top of the page", u"Line 3, heading: Hello", u"Line 4, picture: a.gif",
               u"Line 5, special effect Slideshow", u"At the end of the page"}));
    EXPECT_FALSE(Find<QWidget>(form, "optPlace(0)")->isEnabled());
    auto* list = Find<QListWidget>(form, "lstPlaces");
    EXPECT_EQ(form.focusWidget(), list);
    const auto shownAt = [&](const char* text) { return desk.Pane.Live.back().Bytes.find(text); };
    Press(*list, Qt::Key_Down);
    EXPECT_LT(shownAt("outline:"), shownAt("<h1>"));
    Find<QRadioButton>(form, "optPlace(1)")->click();
    EXPECT_LT(shownAt("</h1>"), shownAt("outline:"));
    EXPECT_LT(shownAt("outline:"), shownAt("a.gif"));
    EXPECT_TRUE(desk.Pane.Live.back().ScrollsToMark);
    list->setFocus();
    Press(*list, Qt::Key_Return);
    EXPECT_EQ(form.End(), PutInEnd::Written);
    EXPECT_EQ(bytes.find("outline:"), std::string::npos);
    EXPECT_LT(bytes.find("</h1>"), bytes.find("<b>new"));
    EXPECT_LT(bytes.find("<b>new"), bytes.find("<img src=a.gif>\r\n<!--"));
    EXPECT_NE(bytes.find("onload='go(1);mine()'"), std::string::npos);
}

} // namespace
} // namespace orvane::testing
