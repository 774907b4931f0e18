#include "effects/page/all_in_one_button_form.h"

#include "core/draft.h"
#include "tests/support/form_test.h"

#include <QComboBox>

namespace orvane::testing {
namespace {

class AllInOneButtonFormTest : public FormTest<AllInOneButtonForm>
{
protected:
    void Choose(ButtonAction action)
    {
        Find<QComboBox>(m_form, "cboButtonAction")->setCurrentIndex(static_cast<int>(action));
        Click(m_form, "cmdNext");
    }
};

TEST_F(AllInOneButtonFormTest, AnotherTypeAndANewEntryEmptyTheTexts)
{
    Choose(ButtonAction::Link);
    Type(m_form, "txtButtonText", u"Go");
    Type(m_form, "txtURL", u"a.html");
    Click(m_form, "optButtonType(0)");
    EXPECT_EQ(m_form.Parameters().txtURL, u"a.html");
    Click(m_form, "optButtonType(2)");
    EXPECT_EQ(m_form.Parameters().txtURL, u"");
    Type(m_form, "txtButtonText", u"x");
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    Click(m_form, "optButtonType(1)");
    Type(m_form, "txtButtonText", u"Go");
    Click(m_form, "cmdPrevious");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.Parameters().txtButtonText, u"");
}

TEST_F(AllInOneButtonFormTest, ADraftsTextsSurviveTheFirstEntryAlone)
{
    const AllInOneButton draft{
        .cboButtonAction = Text(buttonActions[0]), .txtButtonText = u"Go", .txtURL = u"a.html"};
    m_form.SetParameters(draft);
    Press(m_form, Qt::Key_Escape);
    AllInOneButtonForm next(m_desk.Bench);
    next.show();
    Press(*Find<QWidget>(next, "lblTakeUp"), Qt::Key_Return);
    Click(next, "cmdNext");
    EXPECT_EQ(next.Parameters(), draft);
    Click(next, "cmdPrevious");
    Click(next, "cmdNext");
    EXPECT_EQ(next.Parameters().txtButtonText, u"");
}

} // namespace
} // namespace orvane::testing
