#include "effects/applet/image_fade_form.h"

#include "effects/applet/image_fade_url_form.h"
#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "tests/support/test_folder.h"

#include <QListWidget>
#include <QPushButton>

namespace orvane {
namespace {

using namespace orvane::testing;

class ImageFadeFormTest : public ::testing::Test
{
protected:
    ImageFadeFormTest()
    {
        m_form.show();
        m_folder.Put("a.gif", GifBytes(100, 80));
        m_folder.Put("b.gif", GifBytes(100, 80));
        m_folder.Put("c.gif", GifBytes(100, 81));
        m_folder.Put("d.gif", "no picture");
    }

    void Add(const char* name)
    {
        m_desk.Dialogs.AnswerOpenFile(m_folder.TextAt(name));
        Click(m_form, "cmdAddImage");
    }

    FakeDesk m_desk;
    TestFolder m_folder;
    ImageFadeForm m_form{m_desk.Bench};
};

TEST_F(ImageFadeFormTest, HandsOverTheImagesInTheirOrderWithLinkAndSource)
{
    Add("a.gif");
    Add("d.gif");
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());
    Add("c.gif");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    Add("b.gif");
    Click(m_form, "cmdLinkToURL");
    auto* link = m_form.findChild<ImageFadeURLForm*>();
    ASSERT_NE(link, nullptr);
    Click(*link, "cmdOK");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              std::vector<Text>{u"Enter a URL in the text input box or click Cancel."});
    Type(*link, "txtURL", u"WWW.x");
    Click(*link, "cmdOK");
    Click(m_form, "cmdMoveUp"); // the new row was selected
    Type(m_form, "FadePause", u".5");
    Click(m_form, "cmdDone");
    const ImageFade expected{
        .FadeImages = {u"b.gif", u"a.gif"},
        .FadeLinks = {u"http://WWW.x", u""},
        .FadePause = u"1.5",
        .FadeWidth = u"100",
        .FadeHeight = u"80",
        .Required = {.Sources = {m_folder.TextAt("b.gif"), m_folder.TextAt("a.gif")}}};
    EXPECT_EQ(m_form.Parameters(), expected);
    EXPECT_EQ(m_form.TakePayload(), Generate(expected));
}

TEST_F(ImageFadeFormTest, RemovingTheLastImageLetsAnySizeInAgain)
{
    EXPECT_FALSE(Find<QPushButton>(m_form, "cmdRemoveImage")->isEnabled());
    Click(m_form, "cmdLinkToURL");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              std::vector<Text>{
                  u"Select an image from the list and then click the 'Link to URL' button."});
    Add("a.gif");
    Add("b.gif");
    Find<QListWidget>(m_form, "FadeLinks")->setCurrentRow(0);
    Click(m_form, "cmdRemoveImage");
    EXPECT_EQ(m_form.Parameters().Required.Sources[0], m_folder.TextAt("b.gif"));
    Click(m_form, "cmdRemoveImage"); // the next row was selected
    EXPECT_FALSE(Find<QPushButton>(m_form, "cmdMoveUp")->isEnabled());
    Add("c.gif");
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"81");
    EXPECT_EQ(m_form.Parameters().Required, (RequiredFiles{.Sources = {m_folder.TextAt("c.gif")}}));
}

} // namespace
} // namespace orvane
