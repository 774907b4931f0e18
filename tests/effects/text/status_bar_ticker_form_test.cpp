#include "effects/text/status_bar_ticker_form.h"

#include "tests/support/form_test.h"

#include <QPushButton>
#include <QTest>

namespace orvane::testing {
namespace {

using StatusBarTickerFormTest = FormTest<StatusBarTickerForm>;

TEST_F(StatusBarTickerFormTest, AHintComesAndGoesStopsNothingAndWhatIsTypedIsKept)
{
    auto* box = Find<QLineEdit>(m_form, "txtStatusBarText");
    Type(m_form, "txtStatusBarText", u"\"");
    LetRun();
    EXPECT_TRUE(Find<QLabel>(m_form, "lblHint(txtStatusBarText)")->isVisible());
    Press(*box, Qt::Key_Backspace);
    LetRun();
    EXPECT_FALSE(Find<QLabel>(m_form, "lblHint(txtStatusBarText)")->isVisible());
    Type(m_form, "txtStatusBarText", u"\"");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_desk.Files.Contents.empty(); })) << "a draft";
    Click(m_form, "cmdDone");
    EXPECT_TRUE(m_form.TakePayload());
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());
}

} // namespace
} // namespace orvane::testing
