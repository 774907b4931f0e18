#include "effects/page/popup_window_form.h"

#include "tests/support/form_test.h"

#include <QPushButton>

namespace orvane::testing {
namespace {

using PopupWindowFormTest = FormTest<PopupWindowForm>;

TEST_F(PopupWindowFormTest, TheLinkFrameFollowsTheChoice)
{
    auto* item = Find<QLineEdit>(m_form, "txtLinkItem");
    auto* browse = Find<QPushButton>(m_form, "cmdBrowseForImage");
    EXPECT_FALSE(item->isEnabled());
    auto* second = Find<QWidget>(m_form, "optWhenToAppear(1)");
    Click(m_form, "optWhenToAppear(1)");
    second->setFocus();
    Press(*second, Qt::Key_Down);
    EXPECT_TRUE(item->isEnabled());
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("optWhenToAppear(2)"));
    Click(m_form, "optWhenToAppear(1)");
    Click(m_form, "optWhenToAppear(2)");
    EXPECT_EQ(m_form.focusWidget(), item);
    Type(m_form, "txtLinkItem", u"Help");
    Click(m_form, "optWhenToAppear(2)");
    EXPECT_EQ(WordsOf(m_form, "txtLinkItem"), u"Help");
    Click(m_form, "optWhenToAppear(3)");
    EXPECT_EQ(WordsOf(m_form, "txtLinkItem"), u"");
    Type(m_form, "txtLinkItem", u"x");
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    m_desk.Dialogs.AnswerOpenFile(u"/pics/small.gif");
    Click(m_form, "cmdBrowseForImage");
    Click(m_form, "optWhenToAppear(0)");
    EXPECT_FALSE(item->isEnabled());
    EXPECT_FALSE(browse->isEnabled());
    EXPECT_EQ(WordsOf(m_form, "lblLinkItem"), u"Image name:");
    EXPECT_EQ(m_form.Parameters().txtLinkItem, u"small.gif");
}

} // namespace
} // namespace orvane::testing
