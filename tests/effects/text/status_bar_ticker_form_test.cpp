#include "effects/text/status_bar_ticker_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QPushButton>

namespace orvane {
namespace {

using namespace orvane::testing;

class StatusBarTickerFormTest : public ::testing::Test
{
protected:
    FakeDesk m_desk;
    StatusBarTickerForm m_form{m_desk.Bench};
};

TEST_F(StatusBarTickerFormTest, EmptyTextKeepsTheWindowOpenWithTheFocusInIt)
{
    m_form.show();
    m_form.activateWindow();
    Press(m_form, Qt::Key_Return);
    EXPECT_EQ(m_desk.Dialogs.Said,
              std::vector<Text>{u"Please enter the Status Bar scrolling text."});
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtStatusBarText"));
    EXPECT_EQ(m_form.TakePayload(), std::nullopt);
}

} // namespace
} // namespace orvane
