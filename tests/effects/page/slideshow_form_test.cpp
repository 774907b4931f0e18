#include "effects/page/slideshow_form.h"

#include "tests/support/form_test.h"

namespace orvane::testing {
namespace {

using SlideshowFormTest = FormTest<SlideshowForm>;

TEST_F(SlideshowFormTest, TicksTheOtherBoxWithOneMessage)
{
    m_form.SetParameters({.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.jpg"}}});
    Click(m_form, "cmdNext");
    Click(m_form, "chkAutoStart");
    EXPECT_TRUE(m_form.Parameters().chkDisplayControls);
    Click(m_form, "chkDisplayControls");
    EXPECT_TRUE(m_form.Parameters().chkAutoStart);
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 2u);
}

} // namespace
} // namespace orvane::testing
