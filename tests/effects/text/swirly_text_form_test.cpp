#include "effects/text/swirly_text_form.h"

#include "tests/support/form_test.h"
#include "windows/color_list.h"

namespace orvane::testing {
namespace {

using SwirlyTextFormTest = FormTest<SwirlyTextForm>;

TEST_F(SwirlyTextFormTest, ItsColorsAreThoseOfTheSwatchesThatHaveOne)
{
    Type(m_form, "txtText", u"Plums");
    for (const char* taken : {"lstColors(1)", "lstColors(2)", "lstColors(4)"})
        Press(*Find<QWidget>(m_form, taken), Qt::Key_Delete);
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Please choose three colors at least."});
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("lstColors(0)"));
    m_desk.Dialogs.AnswerColor(0xFF);
    Click(m_form, "lstColors(6)");
    const std::vector<Text> colors{u"#c00000", u"#0050c0", u"#FF0000"};
    EXPECT_EQ(m_form.Parameters().lstColors, colors);
    m_form.SetParameters({.txtText = u"Plums", .lstColors = colors, .txtSeconds = u"1"});
    LetRun();
    EXPECT_TRUE(Find<QWidget>(m_form, "lblHint(txtSeconds)")->isVisible());
    Click(m_form, "cmdNext");
    Click(m_form, "cmdNext");
    const SwirlyText wanted{.txtText = u"Plums", .lstColors = colors, .txtSeconds = u"4"};
    EXPECT_EQ(m_form.TakePayload(), Generate(wanted));
}

} // namespace
} // namespace orvane::testing
