#include "effects/page/slideshow_form.h"

#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"

namespace orvane {
namespace {

using namespace orvane::testing;

class SlideshowFormTest : public ::testing::Test
{
protected:
    SlideshowFormTest()
    {
        m_desk.Files.Folders.insert(u"/pics");
        for (const TextView name : {u"a.gif", u"b.jpg"})
            m_desk.Files.Contents[PathIn(u"/pics", name)] = GifBytes(2, 2);
        m_desk.Core.DefaultPath = u"/pics";
    }

    FakeDesk m_desk;
};

TEST_F(SlideshowFormTest, TwoPagesFromFreshToPayload)
{
    SlideshowForm form(m_desk.Bench);
    form.show();
    form.activateWindow();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Slideshow Wizard"));
    Click(form, "cmdAddImageToList");
    Click(form, "cmdNext");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              (std::vector<Text>{u"Please select an image.",
                                 u"Please add more than one image to the Slideshow Image List."}));
    DoubleClickRow(form, "File1", 0);
    ClickRow(form, "File1", 1);
    Click(form, "cmdAddImageToList");
    Click(form, "cmdNext");
    Click(form, "cmdPrevious");
    EXPECT_TRUE(WordsOf(form, "lblSubHeading").ends_with(u"appear in your animation."));
    Click(form, "cmdNext");
    EXPECT_EQ(Find<QLineEdit>(form, "txtSlideDuration")->selectedText(), QStringLiteral("5"));
    EXPECT_EQ(form.focusWidget()->objectName(), QStringLiteral("txtSlideDuration"));
    Click(form, "cmdNext");
    Slideshow show{.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.jpg"}}};
    show.Required.Names = {u"a.gif", u"b.jpg"};
    show.Required.Sources = {u"/pics/a.gif", u"/pics/b.jpg"};
    EXPECT_EQ(form.TakePayload(), Generate(show));
}

TEST_F(SlideshowFormTest, TicksTheOtherBoxWithOneMessage)
{
    SlideshowForm form(m_desk.Bench);
    form.SetParameters({.Rows = {{.FileName = u"a.gif"}, {.FileName = u"b.jpg"}}});
    form.show();
    Click(form, "cmdNext");
    Click(form, "chkAutoStart");
    EXPECT_TRUE(form.Parameters().chkDisplayControls);
    Click(form, "chkDisplayControls");
    EXPECT_TRUE(form.Parameters().chkAutoStart);
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 2u);
}

} // namespace
} // namespace orvane
