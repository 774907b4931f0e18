#include "effects/text/fading_message_form.h"

#include "tests/support/form_test.h"
#include "windows/ok_cancel_form.h"

namespace orvane::testing {
namespace {

class FadingMessageFormTest : public FormTest<FadingMessageForm>
{
protected:
    void PressFocused(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Press(*m_form.focusWidget(), key, modifiers);
    }

    void Add(TextView words, TextView link)
    {
        Click(m_form, "cmdAdd");
        auto* add = m_form.findChild<OkCancelForm*>();
        ASSERT_NE(add, nullptr);
        EXPECT_EQ(add->focusWidget()->objectName(), QStringLiteral("txtWords"));
        Click(*add, "cmdOK");
        EXPECT_EQ(Said(), Texts{u"Please enter the text of the message."});
        Type(*add, "txtWords", words);
        Press(*add->focusWidget(), Qt::Key_Tab);
        Type(*add, "txtLink", link);
        Press(*add->focusWidget(), Qt::Key_Return);
        LetRun();
    }
};

TEST_F(FadingMessageFormTest, FromFreshToPayloadByKeyboard)
{
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Please add a message to the list."});
    Add(u" One ", u"");
    Add(u"Two", u"www.x");
    m_form.findChild<QWidget*>("lstMessages")->setFocus();
    PressFocused(Qt::Key_Up, Qt::AltModifier);
    PressFocused(Qt::Key_Delete);
    PressFocused(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(RowsOf(m_form, "lstLinks"), (Texts{u"http://www.x", u""}));
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtSeconds"));
    PressFocused(Qt::Key_Down);
    Type(m_form, "txtFadeSeconds", u"0");
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{});
    Pick(m_form, "cboFontStyle", "Bold italic");
    m_desk.Dialogs.AnswerColor(0xFF);
    Click(m_form, "cmdTextColor");
    Press(*Find<QWidget>(m_form, "cmdTextColor"), Qt::Key_Delete);
    Click(m_form, "cmdNext");
    const FadingMessage wanted{.lstMessages = {{u"Two", u"http://www.x"}, {u"One", u""}},
                               .txtSeconds = u"3",
                               .txtFadeSeconds = u"10",
                               .Look = {.cboFontStyle = u"bold italic"}};
    EXPECT_EQ(m_form.Parameters(), wanted);
    EXPECT_EQ(m_form.TakePayload(), Generate(wanted));
}

} // namespace
} // namespace orvane::testing
