#include "program/recipe_menu.h"

#include "effects/page/popup_alert_form.h"
#include "effects/text/status_bar_ticker_form.h"
#include "program/command_line.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace orvane::testing {
namespace {

/// The program with a ticker's recipe on its disk.
class RecipeMenuTest : public ::testing::Test
{
protected:
    RecipeMenuTest()
    {
        m_desk.Files.Folders = {u"/site", u"/state"};
        m_desk.Files.Contents = {
            {u"/site/t.OVR", "Effect: Status Bar Text Ticker\ntxtStatusBarText: Figs"},
            {u"/site/alert.ovr", "Effect: Popup Alert Box\ntxtAlertText: Plums"},
            {u"/site/bad.ovr", "Effect: Popup Alert Box\n# a\ntxtAlert: Plums\nplums"}};
        m_road.Start();
    }

    static void Choose(QWidget& window, const char* command)
    {
        window.findChild<QAction*>(QString::fromUtf8(command))->trigger();
    }

    FakeDesk m_desk;
    FormDesk m_road{m_desk.Bench, nullptr};
};

TEST_F(RecipeMenuTest, OpensByItsFileAndByTheMenuAndLeadsToTheWizardOfAnotherEffect)
{
    for (const char* way : {"file", "menu"}) {
        WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
            EXPECT_EQ(wizard.Parameters().txtStatusBarText, u"Figs");
            Press(*Find<QWidget>(wizard, "txtStatusBarText"), Qt::Key_End);
            Type(wizard, "txtStatusBarText", u" and nuts");
            m_desk.Dialogs.AnswerSaveFile(u"/site/t.OVR");
            Choose(wizard, "mnuSaveAsRecipe");
            EXPECT_TRUE(m_desk.Files.Contents[u"/site/t.OVR"].ends_with("Figs and nuts\n"));
            m_desk.Files.Contents[u"/site/t.OVR"] = "Effect: StatusBarTextTicker\n"
                                                    "txtStatusBarText: Figs";
            WhenInFront<PopupAlertForm>([](PopupAlertForm& other) {
                EXPECT_EQ(other.Parameters().txtAlertText, u"Plums");
                other.reject();
            });
            m_desk.Dialogs.AnswerOpenFile(u"/site/alert.ovr");
            Choose(wizard, "mnuOpenRecipe");
        });
        if (way == std::string("file")) {
            m_road.OpenFile(u"/site/t.OVR");
        } else {
            m_desk.Dialogs.AnswerOpenFile(u"/site/t.OVR");
            Choose(*m_road.MainForm(), "mnuOpenRecipe");
        }
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << way;
    }
    EXPECT_EQ(m_desk.Dialogs.Said, Texts());
    EXPECT_EQ(std::get<Text>(FileOf({QStringLiteral("/site/t.OVR")})), u"/site/t.OVR");
}

TEST_F(RecipeMenuTest, TellsWhatIsWrongWithARecipeLineByLineAndStaysWhereItIs)
{
    const Text words =
        u"Orvane cannot open the recipe /site/bad.ovr.\r\n\r\nLine 3: This effect has "
        u"no field \"txtAlert\".\r\nLine 4: This line is neither a comment nor "
        u"\"name: value\".";
    m_road.OpenFile(u"/site/bad.ovr");
    m_road.OpenFile(u"/site/gone.ovr");
    EXPECT_EQ(
        m_desk.Dialogs.TakeSaid(),
        (Texts{words, u"Orvane cannot open the recipe /site/gone.ovr.\r\n\r\nFile not found"}));
    WhenInFront<StatusBarTickerForm>([&](StatusBarTickerForm& wizard) {
        Type(wizard, "txtStatusBarText", u"mine");
        m_desk.Dialogs.AnswerOpenFile(u"/site/bad.ovr");
        Choose(wizard, "mnuOpenRecipe");
        m_desk.Files.FailOn(u"/site/no.ovr", Fault::PermissionDenied);
        m_desk.Dialogs.AnswerSaveFile(u"/site/no.ovr");
        Choose(wizard, "mnuSaveAsRecipe");
        EXPECT_EQ(wizard.Parameters().txtStatusBarText, u"mine");
        wizard.reject();
    });
    m_road.OpenEffect(EffectKind::StatusBarTicker);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), (Texts{words, u"Permission denied"}));

    StatusBarTickerForm inPage(m_desk.Bench);
    AddRecipeMenu(inPage, m_desk.Bench);
    m_desk.Dialogs.AnswerOpenFile(u"/site/alert.ovr");
    Choose(inPage, "mnuOpenRecipe");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              Texts{u"This recipe is of another special effect, \"Popup Alert Box\"."});
}

TEST_F(RecipeMenuTest, TheMenuOpensByItsKeyAndGivesTheFocusBack)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        StatusBarTickerForm wizard(m_desk.Bench);
        AddRecipeMenu(wizard, m_desk.Bench);
        wizard.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&wizard));
        auto* field = Find<QWidget>(wizard, "txtStatusBarText");
        field->setFocus();
        auto* menu = Find<QPushButton>(wizard, "cmdMenu")->menu();
        // From the event loop: the menu has one of its own.
        Poll([&](QWidget*, bool mayWait) {
            if (menu->activeAction() == nullptr)
                return !mayWait && menu->close();
            if (key == Qt::Key_Return)
                m_desk.Dialogs.AnswerSaveFile({});
            QTest::keyClick(menu, key);
            return true;
        });
        QTest::keyClick(field, Qt::Key_U, Qt::AltModifier);
        LetRun();
        EXPECT_FALSE(menu->isVisible());
        EXPECT_EQ(wizard.focusWidget(), field);
        EXPECT_EQ(m_desk.Dialogs.Requests.size(), key == Qt::Key_Return ? 1u : 0u);
    }
    EXPECT_EQ(m_desk.Dialogs.Requests.front().FileName, u"Status Bar Text Ticker.ovr");
}

} // namespace
} // namespace orvane::testing
