#include "effects/text/text_transitions_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

namespace orvane::testing {
namespace {

TEST(TextTransitionsFormTest, ShowsTheListAndTheRowsOfItsMode)
{
    for (const bool ofImages : {false, true}) {
        FakeDesk desk;
        desk.Core.TransitionsImageMode = ofImages;
        TextTransitionsForm form(desk.Bench);
        form.show();
        EXPECT_EQ(FromQt(form.windowTitle()),
                  ofImages ? u"Image Transitions" : u"IE Text Transitions");
        LetRun();
        ExpectAccessible(form);
        EXPECT_EQ(form.focusWidget()->objectName(),
                  ofImages ? QStringLiteral("lstPictures") : QStringLiteral("lstMessages"));
        EXPECT_EQ(Find<QWidget>(form, "lstPictures")->isVisible(), ofImages);
        EXPECT_EQ(Find<QWidget>(form, "lstMessages")->isVisible(), !ofImages);
        Click(form, "cmdNext");
        EXPECT_EQ(desk.Dialogs.TakeSaid(), Texts{ofImages ? u"Please add a picture to the list."
                                                          : u"Please add a message to the list."});
        form.SetParameters({.TransitionsImageMode = TransitionsOf(!ofImages),
                            .lstMessages = {{u"a"}},
                            .lstPictures = {{u"a.gif"}}});
        Click(form, "cmdNext");
        Click(form, "cmdNext");
        EXPECT_EQ(Find<QWidget>(form, "cboFit")->isVisible(), !ofImages);
        EXPECT_EQ(Find<QWidget>(form, "cboFont")->isVisible(), ofImages);
        Click(form, "cmdNext");
        EXPECT_NE(Find(form.TakePayload()->BODYHTML, ofImages ? u"\"texts-1\"" : u"\"images-1\""),
                  0u);
    }
}

} // namespace
} // namespace orvane::testing
