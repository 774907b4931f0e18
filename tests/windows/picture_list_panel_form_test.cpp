#include "windows/picture_list_panel.h"

#include "core/block.h"
#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"
#include "tests/support/test_folder.h"
#include "windows/acting_list.h"
#include "windows/field_controls.h"
#include "windows/ok_cancel_form.h"
#include "windows/picture_box.h"

#include <QVBoxLayout>

namespace orvane::testing {
namespace {

class PictureListPanelTest : public ::testing::Test
{
protected:
    PictureListPanelTest()
    {
        m_folder.MakeFolder("cats");
        for (const char* name : {"cats/cat 10.gif", "cats/cat 9.gif", "cats/page.html"})
            AddFile(name, GifBytes(30, 20));
        AddFile("old.gif", "no picture");
        (new QVBoxLayout(&m_window))
            ->addWidget(
                new PictureListPanel(EffectKind::AnimationWizard, PictureWords::Own, m_desk.Bench));
        m_window.show();
        m_window.activateWindow();
        LetRun();
    }

    Text Path(const std::string& name) const { return m_folder.TextAt(name); }

    void AddFile(const std::string& name, const std::string& bytes)
    {
        m_folder.Put(name, bytes);
        m_desk.Files.Contents[Path(name)] = bytes;
    }

    BlockPictures Pictures() const
    {
        BlockPictures pictures;
        FieldControls(const_cast<QDialog&>(m_window)).Read("lstPictures", pictures);
        return pictures;
    }

    BlockPicture Cat(const std::string& number) const
    {
        return {.Address = FromUtf8("cat%20" + number + ".gif"),
                .Source = Path("cats/cat " + number + ".gif"),
                .Width = 30,
                .Height = 20};
    }

    TestFolder m_folder;
    FakeDesk m_desk;
    QDialog m_window;
};

TEST_F(PictureListPanelTest, TakesPicturesAndFoldersOfThemAndNamesWhatIsNone)
{
    ExpectAccessible(m_window);
    m_desk.Dialogs.AnswerOpenFile(std::nullopt);
    Click(m_window, "cmdAddPictures");
    EXPECT_TRUE(DropFiles(*Find<QWidget>(m_window, "lstPictures"), {Path("cats")}));
    LetRun();
    EXPECT_EQ(Pictures(), (BlockPictures{Cat("9"), Cat("10")}));
    EXPECT_EQ(RowsOf(m_window, "lstPictures"), (Texts{u"cat 9.gif", u"cat 10.gif"}));
    EXPECT_EQ(Find<PictureBox>(m_window, "picPreview")->pixmap().size(), QSize(30, 20));
    m_desk.Dialogs.AnswerOpenFile(Path("old.gif"));
    m_desk.Dialogs.AnswerOpenFile(Path("cats/cat 9.gif"));
    Click(m_window, "cmdAddPictures");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{u"Orvane can't read this image:\r\nold.gif"});
    EXPECT_EQ(Pictures(), (BlockPictures{Cat("9"), Cat("10"), Cat("9")}));
}

TEST_F(PictureListPanelTest, APictureHasItsDescriptionAndLinkInAWindow)
{
    m_desk.Dialogs.AnswerOpenFile(Path("cats/cat 9.gif"));
    Click(m_window, "cmdAddPictures");
    Press(*Find<ActingList>(m_window, "lstPictures"), Qt::Key_Return);
    auto& picture = *m_window.findChild<OkCancelForm*>();
    ExpectAccessible(picture);
    Type(picture, "txtLink", u"www.cats.example");
    LetRun();
    EXPECT_TRUE(Find<QWidget>(picture, "lblHint(txtLink)")->isVisible());
    Type(picture, "txtDescription", u" A cat ");
    LetRun();
    EXPECT_FALSE(Find<QWidget>(picture, "lblHint(txtLink)")->isVisible());
    Press(picture, Qt::Key_Return);
    BlockPicture expected = Cat("9");
    expected.Description = u"A cat";
    expected.Link = u"http://www.cats.example";
    EXPECT_EQ(Pictures(), BlockPictures{expected});
    EXPECT_EQ(RowsOf(m_window, "lstLinks"), Texts{u"http://www.cats.example"});
}

} // namespace
} // namespace orvane::testing
