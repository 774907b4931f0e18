#include "effects/applet/image_fade_form.h"

#include "tests/support/form_test.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_mouse.h"
#include "tests/support/test_folder.h"
#include "windows/ok_cancel_form.h"

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

    FadeImage Image(const char* name, TextView link = {}) const
    {
        return {FromUtf8(name), Text(link), m_folder.TextAt(name)};
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
    auto* link = m_form.findChild<OkCancelForm*>();
    Type(*link, "txtURL", u"x");
    Click(*link, "cmdOK");
    EXPECT_TRUE(DragRow(m_form, "FadeImages", 1, 0));
    EXPECT_EQ(m_form.Parameters().Images,
              (std::vector<FadeImage>{Image("a.gif", u"x"), Image("b.gif")}));
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
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"80");
    Click(m_form, "cmdRemoveImage"); // the next row was selected
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"");
    EXPECT_FALSE(Find<QPushButton>(m_form, "cmdMoveUp")->isEnabled());
    auto* images = Find<QListWidget>(m_form, "FadeImages");
    for (int times = 0; times < 2; ++times)
        Press(*images, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_form.Parameters().Images, (std::vector<FadeImage>{Image("a.gif"), Image("b.gif")}));
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"80");
    for (int times = 0; times < 2; ++times)
        Press(*images, Qt::Key_Delete);
    Add("c.gif");
    Press(*images, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_form.Parameters().FadeHeight, u"81");
    EXPECT_EQ(m_form.Parameters().Images, std::vector<FadeImage>{Image("c.gif")});
}

} // namespace
} // namespace orvane::testing
