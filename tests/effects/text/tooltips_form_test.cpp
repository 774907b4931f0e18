#include "effects/text/tooltips_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QRadioButton>

namespace orvane {
namespace {

using namespace orvane::testing;

TEST(TooltipsFormTest, FromFreshToPayload)
{
    FakeDesk desk;
    TooltipsForm form(desk.Bench);
    form.show();
    EXPECT_EQ(WordsOf(form, "TextColor"), u"Select Color");
    Type(form, "txtTooltipText", u"A fact");
    desk.Dialogs.AnswerColor(0x0080FF);
    Click(form, "BGColor");
    EXPECT_EQ(WordsOf(form, "BGColor"), u"");
    Click(form, "cmdNext");
    Find<QLineEdit>(form, "txtWidth")->clear();
    Click(form, "cmdNext");
    EXPECT_EQ(desk.Dialogs.TakeSaid(), std::vector<Text>{u"Please type a valid width and height."});
    EXPECT_EQ(form.focusWidget()->objectName(), QStringLiteral("txtTitleText"));
    Click(form, "cmdPrevious"); // the way back is free
    Click(form, "cmdNext");
    Type(form, "txtWidth", u"99");
    Click(form, "cmdNext");
    Click(form, "cmdNext");
    EXPECT_EQ(desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_EQ(form.Parameters().optHoverObject, HoverObject::None);
    Find<QRadioButton>(form, "optHoverObject(1)")->click();
    EXPECT_TRUE(Find<QLineEdit>(form, "txtMainText")->isEnabled());
    Type(form, "txtImage", u"a");
    EXPECT_EQ(desk.Dialogs.TakeSaid().size(), 1u);
    desk.Dialogs.AnswerOpenFile(u"/my pics/a photo.gif");
    Click(form, "cmdBrowseForImage");
    Click(form, "cmdNext");
    EXPECT_EQ(form.TakePayload(), Generate({.txtTooltipText = u"A fact",
                                            .BGColor = u"rgb(255,128,0)",
                                            .txtWidth = u"99",
                                            .optHoverObject = HoverObject::Image,
                                            .txtImage = u"/my pics/a photo.gif"}));
}

} // namespace
} // namespace orvane
