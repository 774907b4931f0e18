#include "effects/page/dynamic_button_form.h"

#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "tests/support/test_folder.h"

namespace orvane::testing {
namespace {

TEST(DynamicButtonFormTest, ThreePagesFromFreshToPayload)
{
    FakeDesk desk;
    TestFolder folder;
    WriteFile(folder.At("up.gif"), GifBytes(30, 20));
    desk.Core.ImageFolderMemo = desk.Core.LastSoundFolder = desk.Core.LinkFolderMemo = u"/program";
    desk.Core.EditMode = true; // a pasted button opens the window and fills nothing
    DynamicButtonForm form(desk.Bench);
    form.Open(PastedTag{u"<APPLET CODE=Button.class>"});
    EXPECT_FALSE(desk.Core.EditMode);
    form.show();
    const auto browse = [&](const char* button, Text path) {
        desk.Dialogs.AnswerOpenFile(std::move(path));
        Click(form, button);
        return desk.Dialogs.Requests.back();
    };
    const auto picture = [&] { return Find<QLabel>(form, "picPreview")->pixmap().size(); };

    Click(form, "cmdNext");
    EXPECT_EQ(desk.Dialogs.TakeSaid(), Texts{u"Please specify an image for the button."});
    EXPECT_EQ(browse("cmdBrowseForImage", u"/pics/my button.gif").InitDir, u"/program");
    EXPECT_EQ(desk.Dialogs.TakeSaid().size(), 1u);
    browse("cmdBrowseForImage", folder.TextAt("up.gif"));
    EXPECT_EQ(picture(), QSize(30, 20));
    EXPECT_EQ(browse("cmdBrowseForImage", u"/pics/broken.gif").InitDir, folder.TextAt(""));
    EXPECT_TRUE(picture().isEmpty());
    Click(form, "cmdNext");

    const FileRequest sound = browse("cmdBrowseForSound", u"/sounds/a.wav");
    EXPECT_EQ(sound.InitDir, u"/program");
    EXPECT_NE(Find(sound.Filter, u"|*.wav|"), 0u);
    EXPECT_EQ(WordsOf(form, "cmdNext"), u"&Next >>");
    Click(form, "cmdNext");

    const FileRequest link = browse("cmdBrowseForURL", u"/site/next.html");
    EXPECT_EQ(std::tuple(link.Title, link.FilterIndex, link.InitDir),
              std::tuple(u"Browse...", 2, u"/program"));
    EXPECT_EQ(desk.Core.LinkFolderMemo, u"/site/");
    Find<QLineEdit>(form, "LinkUrl")->clear();
    Type(form, "LinkUrl", u"www.example.com");
    EXPECT_EQ(WordsOf(form, "cmdNext"), u"&Done");
    Click(form, "cmdNext");

    const auto payload = form.TakePayload();
    ASSERT_TRUE(payload);
    EXPECT_EQ(payload->Required.RequiredFileNames[2], u"a.wav");
    EXPECT_EQ(payload->Required.RequiredFileSources[0], u"/pics/broken.gif");
    EXPECT_EQ(Left(payload->BODYHTML, 21), u"<bgsound id='bgs5443'"); // the desk's clock
    EXPECT_EQ(form.Parameters().LinkUrl, u"http://www.example.com");
}

} // namespace
} // namespace orvane::testing
