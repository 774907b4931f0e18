#include "effects/page/popup_alert_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QComboBox>
#include <QPlainTextEdit>

namespace orvane {
namespace {

using namespace orvane::testing;

TEST(PopupAlertFormTest, FromFreshToPayload)
{
    FakeDesk desk;
    PopupAlertForm form(desk.Bench);
    form.show();
    form.activateWindow();
    EXPECT_EQ(WordsOf(form, "lblAlertTypeDesc"), alertTypes[0].Description);
    Press(*Find<QComboBox>(form, "cmboAlertType"), Qt::Key_Down);
    EXPECT_EQ(WordsOf(form, "lblAlertTypeDesc"), alertTypes[1].Description);
    EXPECT_EQ(form.focusWidget()->objectName(), QStringLiteral("txtAlertText"));
    Find<QPlainTextEdit>(form, "txtAlertText")->setPlainText(QStringLiteral("Do you\nlike it?"));
    Click(form, "cmdDone");
    const PopupAlert alert{.cmboAlertType = u"OK/Cancel box", .txtAlertText = u"Do you\\nlike it?"};
    EXPECT_EQ(form.TakePayload(), Generate(alert));
    EXPECT_EQ(form.Parameters(), alert);
}

} // namespace
} // namespace orvane
