#include "program/page_effects_road.h"

#include "core/effect_markers.h"
#include "delivery/preview_form.h"
#include "effects/text/status_bar_ticker_form.h"
#include "program/choose_effect_form.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "reedit/effects_on_page_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace orvane::testing {
namespace {

const Text path = u"/site/a.html";

TEST(PageEffectsRoadOpeningTest, OpensByCtrlEAndByAPageThatIsDropped)
{
    FakeDesk desk;
    FormDesk road(desk.Bench, nullptr);
    road.Start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(road.MainForm()));
    QTemporaryDir folder;
    const Text dropped = FromQt(folder.filePath(QStringLiteral("a.html")));
    QFile file(ToQt(dropped));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const EffectMarkers markers = MarkersOf(u"Sound");
    desk.Files.Contents[dropped] = ToBytes(Join({markers.Begin, u"\r\n", markers.End}));
    Texts pages;
    const auto note = [&](EffectsOnPageForm& form) {
        pages.push_back(WordsOf(form, "txtPage"));
        EXPECT_EQ(Find<ActingList>(form, "lstPageEffects")->count(), pages.size() == 2 ? 1 : 0);
        form.reject();
    };
    WhenInFront<EffectsOnPageForm>(note);
    QTest::keyClick(road.MainForm(), Qt::Key_E, Qt::ControlModifier);
    WhenInFront<EffectsOnPageForm>(note);
    EXPECT_TRUE(DropFiles(*road.MainForm(), {dropped}));
    QTRY_COMPARE(pages.size(), 2u);
    EXPECT_EQ(pages, (Texts{u"", dropped}));
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
                    EXPECT_NE(m_desk.Pane.Live.back().Bytes->find("last words"), std::string::npos);
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
            EffectButtonIn(choice, EffectKind::StatusBarTicker)->click();
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

} // namespace
} // namespace orvane::testing
