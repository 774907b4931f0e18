#include "effects/text/status_bar_ticker_form.h"

#include "tests/support/form_test.h"

#include <QPushButton>

namespace orvane::testing {
namespace {

using StatusBarTickerFormTest = FormTest<StatusBarTickerForm>;

TEST_F(StatusBarTickerFormTest, EmptyTextKeepsTheWindowOpenWithTheFocusInIt)
{
    m_form.activateWindow();
    Press(m_form, Qt::Key_Return);
    EXPECT_EQ(m_desk.Dialogs.Said, Texts{u"Please enter the Status Bar scrolling text."});
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtStatusBarText"));
    EXPECT_EQ(m_form.TakePayload(), std::nullopt);
}

} // namespace
} // namespace orvane::testing
