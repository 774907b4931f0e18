#include "delivery/make_dir_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"

#include <memory>

namespace orvane {
namespace {

using namespace orvane::testing;

class MakeDirFormTest : public ::testing::Test
{
protected:
    MakeDirFormTest()
    {
        m_desk.Files.Folders = {u"/", u"/site", u"/site/pages", u"/site/pictures"};
        m_form = std::make_unique<MakeDirForm>(m_desk.Bench, u"/site");
        m_form->show();
        LetRun();
    }

    /// The window closed without a word, and the delivery wizard goes to that folder.
    void ExpectClosed(const std::optional<Text>& newFolder)
    {
        EXPECT_FALSE(m_form->isVisible());
        EXPECT_EQ(m_form->NewFolder(), newFolder);
        EXPECT_TRUE(m_desk.Dialogs.Said.empty());
    }

    FakeDesk m_desk;
    std::unique_ptr<MakeDirForm> m_form;
};

TEST_F(MakeDirFormTest, EnterCreatesTheFolderBelowTheOneThatItsOwnBoxShows)
{
    EXPECT_EQ(RowsOf(*m_form, "Dir1"), (std::vector<Text>{u"/", u"site", u"pages", u"pictures"}));
    EXPECT_EQ(SelectedRowOf(*m_form, "Dir1"), 1);
    ExpectAccessible(*m_form);
    DoubleClickRow(*m_form, "Dir1", 3);
    Type(*m_form, "txtFolder", u" new pics ");
    Press(*Find<QWidget>(*m_form, "txtFolder"), Qt::Key_Return);
    EXPECT_TRUE(m_desk.Files.FolderExists(u"/site/pictures/new pics"));
    ExpectClosed(u"/site/pictures/new pics");
}

TEST_F(MakeDirFormTest, WantsANameAndStaysForIt)
{
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              std::vector<Text>{u"Please enter a new folder name for Orvane to create."});
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_EQ(m_form->focusWidget(), Find<QWidget>(*m_form, "txtFolder"));
    Type(*m_form, "txtFolder", u"new");
    Click(*m_form, "cmdCancel");
    EXPECT_FALSE(m_desk.Files.FolderExists(u"/site/new"));
    ExpectClosed(std::nullopt);
}

} // namespace
} // namespace orvane
