#include "effects/text/status_bar_ticker_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QSplitter>

namespace orvane::testing {
namespace {

class SidePaneFormTest : public ::testing::Test
{
protected:
    /// A wizard with a part at its right.
    struct Wizard
    {
        explicit Wizard(FakeDesk& desk) : Window(desk.Bench)
        {
            Window.AddSide(Side);
            Window.show();
            Window.resize(1000, 500);
            LetRun();
        }
        StatusBarTickerForm Window;
        QWidget* Side = new QWidget;
    };

    FakeDesk m_desk;
};

TEST_F(SidePaneFormTest, StandsBesideTheWizardWhereTheWindowHasRoom)
{
    Wizard wizard(m_desk);
    ExpectAccessible(wizard.Window);
    for (const int width : {900, 899, 900}) {
        wizard.Window.resize(width, 500);
        EXPECT_EQ(wizard.Side->isVisible(), width == 900);
    }
    EXPECT_LE(wizard.Window.minimumSizeHint().width(), 640) << "the part makes way";
    auto* splitter = Find<QSplitter>(wizard.Window, "");
    splitter->setSizes({900 - 350, 350});
    wizard.Window.hide();
    EXPECT_NEAR(Wizard(m_desk).Side->width(), 350, 10) << "the width is remembered";
}

TEST_F(SidePaneFormTest, IsFoldedByKeyOrButtonWhileTheFocusStays)
{
    {
        Wizard wizard(m_desk);
        QWidget* focus = wizard.Window.focusWidget();
        Press(*focus, Qt::Key_F12);
        EXPECT_FALSE(wizard.Side->isVisible());
        EXPECT_LT(wizard.Window.width(), 900) << "the window gives back the room";
        wizard.Window.resize(1000, 500);
        EXPECT_FALSE(wizard.Side->isVisible()) << "the author wants it so";
        Press(*focus, Qt::Key_F12);
        EXPECT_TRUE(wizard.Side->isVisible());
        EXPECT_EQ(wizard.Window.focusWidget(), focus);
        Click(wizard.Window, "cmdFoldPreview");
        EXPECT_FALSE(wizard.Side->isVisible());
        wizard.Window.hide();
    }
    Wizard wizard(m_desk);
    EXPECT_FALSE(wizard.Side->isVisible()) << "for every window";
    wizard.Window.resize(700, 500);
    Click(wizard.Window, "cmdFoldPreview");
    EXPECT_FALSE(wizard.Side->isVisible());
    EXPECT_EQ(WordsOf(wizard.Window, "lblNote"), u"The preview needs a wider screen.")
        << "than that of the tests";
}

} // namespace
} // namespace orvane::testing
