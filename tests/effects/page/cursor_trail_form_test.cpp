#include "effects/page/cursor_trail_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QSlider>

namespace orvane {
namespace {

using namespace orvane::testing;

TEST(CursorTrailFormTest, FromFreshToPayload)
{
    FakeDesk desk;
    CursorTrailForm form(desk.Bench);
    form.show();
    desk.Dialogs.AnswerOpenFile(u"/my pics/a star.gif");
    Click(form, "cmdBrowseForImage");
    EXPECT_NE(Find(desk.Dialogs.Requests[0].Filter, u"|*.gif;*.jpg;*.jpeg"), 0u);
    EXPECT_EQ(WordsOf(form, "txtImage"), u"/my pics/a star.gif");
    Press(*Find<QSlider>(form, "Slider"), Qt::Key_Right);
    Type(form, "txtImage", u"a");
    EXPECT_EQ(desk.Dialogs.Said.size(), 1u);
    Click(form, "cmdDone");
    EXPECT_EQ(form.TakePayload(), Generate({.txtImage = u"/my pics/a star.gif", .Slider = 6}));
}

} // namespace
} // namespace orvane
