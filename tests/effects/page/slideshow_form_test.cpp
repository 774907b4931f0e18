#include "effects/page/slideshow_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

namespace orvane {
namespace {

using namespace orvane::testing;

TEST(SlideshowFormTest, TicksTheOtherBoxWithOneMessage)
{
    FakeDesk desk;
    SlideshowForm form(desk.Bench);
    form.SetParameters({.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.jpg"}}});
    form.show();
    Click(form, "cmdNext");
    Click(form, "chkAutoStart");
    EXPECT_TRUE(form.Parameters().chkDisplayControls);
    Click(form, "chkDisplayControls");
    EXPECT_TRUE(form.Parameters().chkAutoStart);
    EXPECT_EQ(desk.Dialogs.Said.size(), 2u);
}

} // namespace
} // namespace orvane
