#include "effects/text/tooltips_form.h"

#include "tests/support/form_test.h"

#include <QRadioButton>

namespace orvane::testing {
namespace {

using TooltipsFormTest = FormTest<TooltipsForm>;

TEST_F(TooltipsFormTest, FromFreshToPayload)
{
    EXPECT_EQ(WordsOf(m_form, "TextColor"), u"Select Color");
    Type(m_form, "txtTooltipText", u"A fact");
    m_desk.Dialogs.AnswerColor(0x0080FF);
    Click(m_form, "BGColor");
    EXPECT_EQ(WordsOf(m_form, "BGColor"), u"");
    Click(m_form, "cmdNext");
    Find<QLineEdit>(m_form, "txtWidth")->clear();
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Please type a valid width and height."});
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtTitleText"));
    Click(m_form, "cmdPrevious"); // the way back is free
    Click(m_form, "cmdNext");
    Type(m_form, "txtWidth", u"99");
    Click(m_form, "cmdNext");
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said().size(), 1u);
    EXPECT_EQ(m_form.Parameters().optHoverObject, HoverObject::None);
    Find<QRadioButton>(m_form, "optHoverObject(1)")->click();
    EXPECT_TRUE(Find<QLineEdit>(m_form, "txtMainText")->isEnabled());
    Type(m_form, "txtImage", u"a");
    EXPECT_EQ(Said().size(), 1u);
    m_desk.Dialogs.AnswerOpenFile(u"/my pics/a photo.gif");
    Click(m_form, "cmdBrowseForImage");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.TakePayload(), Generate({.txtTooltipText = u"A fact",
                                              .BGColor = u"rgb(255,128,0)",
                                              .txtWidth = u"99",
                                              .optHoverObject = HoverObject::Image,
                                              .txtImage = u"/my pics/a photo.gif"}));
}

} // namespace
} // namespace orvane::testing
