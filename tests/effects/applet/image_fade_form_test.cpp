#include "effects/applet/image_fade_form.h"

#include "effects/applet/image_fade_url_form.h"
#include "tests/support/form_test.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_mouse.h"
#include "tests/support/test_folder.h"

#include <QListWidget>
#include <QPushButton>

namespace orvane::testing {
namespace {

class ImageFadeFormTest : public FormTest<ImageFadeForm>
{
protected:
    ImageFadeFormTest()
    {
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

    TestFolder m_folder;
};

TEST_F(ImageFadeFormTest, DroppedImagesComeInTheirOrderAndDraggedOnesTakeLinkAndSourceAlong)
{
    const auto path = [this](const char* name) { return m_folder.TextAt(name); };
    m_folder.Put("e.txt", "text");
    QWidget& links = *Find<QListWidget>(m_form, "FadeLinks")->viewport();
    EXPECT_TRUE(DropFiles(links, {path("b.gif"), path("c.gif"), path("e.txt"), path("c.gif"),
                                  path("d.gif"), path("a.gif")}));
    EXPECT_EQ(Said(),
              (Texts{u"The images must be exactly the same size.  If one image is 100 pixels by "
                     u"100 pixels, then this image must be 100 x 100.\r\nc.gif\r\nc.gif",
                     u"Orvane can't read this image:\r\nd.gif",
                     u"These files do not fit here and were left out:\r\ne.txt"}));
    Click(m_form, "cmdLinkToURL");
    auto* link = m_form.findChild<ImageFadeURLForm*>();
    Type(*link, "txtURL", u"x");
    Click(*link, "cmdOK");
    EXPECT_TRUE(DragRow(m_form, "FadeImages", 1, 0));
    const ImageFade fade = m_form.Parameters();
    EXPECT_EQ(fade.FadeImages, (Texts{u"a.gif", u"b.gif"}));
    EXPECT_EQ(fade.FadeLinks, (Texts{u"x", u""}));
    EXPECT_EQ(fade.Required, (RequiredFiles{.Sources = {path("a.gif"), path("b.gif")}}));
}

TEST_F(ImageFadeFormTest, RemovingTheLastImageLetsAnySizeInAgain)
{
    EXPECT_FALSE(Find<QPushButton>(m_form, "cmdRemoveImage")->isEnabled());
    Click(m_form, "cmdLinkToURL");
    EXPECT_EQ(Said(),
              Texts{u"Select an image from the list and then click the 'Link to URL' button."});
    Add("a.gif");
    Add("b.gif");
    Find<QListWidget>(m_form, "FadeLinks")->setCurrentRow(0);
    Click(m_form, "cmdRemoveImage");
    EXPECT_EQ(m_form.Parameters().Required.Sources[0], m_folder.TextAt("b.gif"));
    Click(m_form, "cmdRemoveImage"); // the next row was selected
    EXPECT_FALSE(Find<QPushButton>(m_form, "cmdMoveUp")->isEnabled());
    auto* images = Find<QListWidget>(m_form, "FadeImages");
    for (int times = 0; times < 2; ++times)
        Press(*images, Qt::Key_Z, Qt::ControlModifier);
    const RequiredFiles both{.Sources = {m_folder.TextAt("a.gif"), m_folder.TextAt("b.gif")}};
    EXPECT_EQ(m_form.Parameters().Required, both);
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"80");
    for (int times = 0; times < 2; ++times)
        Press(*images, Qt::Key_Delete);
    Add("c.gif");
    Press(*images, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"81");
    EXPECT_EQ(m_form.Parameters().Required, (RequiredFiles{.Sources = {m_folder.TextAt("c.gif")}}));
}

} // namespace
} // namespace orvane::testing
