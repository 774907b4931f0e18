#include "services/c_file.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

class CFileTest : public ::testing::Test
{
protected:
    const FileRequest& Request() { return dialogs.Requests.back(); }

    void ExpectChosen(TextView path, TextView name, TextView full)
    {
        EXPECT_EQ(file.Path, path);
        EXPECT_EQ(file.Filename, name);
        EXPECT_EQ(file.PathAndFilename, full);
    }

    FakeDialogs dialogs;
    frmCmnDlg shared;
    CFile file{dialogs, shared};
};

TEST_F(CFileTest, SavesUnderTheFixedTitleAndSplitsThePickedPath)
{
    file.DialogTitle = u"not shown";
    file.Filename = u"not proposed";
    file.Filter = u"A|*.a|B|*.b";
    file.FilterIndex = 2;
    dialogs.AnswerSaveFile(u"/a/b.gif");
    EXPECT_EQ(ValueIn(file.GetFileNameForSave()), u"/a/b.gif");
    ExpectChosen(u"/a", u"b.gif", u"/a/b.gif");
    EXPECT_EQ(Request().Title, u"Save...");
    EXPECT_EQ(Request().Filter, u"A|*.a|B|*.b");
    EXPECT_EQ(Request().FilterIndex, 2);
    EXPECT_EQ(Request().InitDir, u"C:\\");
    EXPECT_EQ(Request().FileName, u"");
}

TEST_F(CFileTest, BrowsesByItsPropertiesAndProposesItsFilename)
{
    file.DialogTitle = u"Find it";
    file.Filename = u"old.gif";
    file.InitDir = u"/start";
    file.FilterIndex = 3;
    dialogs.AnswerOpenFile(u"/a.gif");
    EXPECT_EQ(FaultIn(file.Browse()), nullptr);
    ExpectChosen(u"", u"a.gif", u"/a.gif");
    EXPECT_EQ(Request().Title, u"Find it");
    EXPECT_EQ(Request().FileName, u"old.gif");
    EXPECT_EQ(Request().InitDir, u"/start");
    EXPECT_EQ(Request().FilterIndex, 3);
    EXPECT_EQ(Request().Filter, u"All Files (*.*)|*.*");
}

TEST_F(CFileTest, CancelGivesTheEmptyTextAndLeavesAllProperties)
{
    file.Path = u"/a";
    file.Filename = u"b.gif";
    file.PathAndFilename = u"/a/b.gif";
    dialogs.AnswerSaveFile(std::nullopt);
    dialogs.AnswerOpenFile(std::nullopt);
    dialogs.AnswerOpenFile(std::nullopt);
    EXPECT_EQ(ValueIn(file.GetFileNameForSave()), u"");
    EXPECT_EQ(FaultIn(file.Browse()), nullptr);
    file.CancelError = false;
    EXPECT_EQ(ValueIn(file.BrowseForFile(1)), u"");
    ExpectChosen(u"/a", u"b.gif", u"/a/b.gif");
    // A save dialog whose cancel is no error picks the empty name.
    dialogs.AnswerSaveFile(std::nullopt);
    EXPECT_EQ(std::get<Fault>(file.GetFileNameForSave()), Fault::InvalidProcedureCall);
    ExpectChosen(u"/a", u"", u"");
}

TEST_F(CFileTest, TheNextFileDialogOfTheRunOpensWhereTheLastOneEnded)
{
    dialogs.AnswerOpenFile(u"/a/b.gif");
    dialogs.AnswerOpenFile(std::nullopt);
    dialogs.AnswerOpenFile(std::nullopt);
    EXPECT_EQ(ValueIn(file.BrowseForFile(1)), u"/a/b.gif");
    ExpectChosen(u"/a", u"b.gif", u"/a/b.gif");
    CFile next(dialogs, shared);
    EXPECT_EQ(FaultIn(next.BrowseForFile(0)), nullptr);
    EXPECT_EQ(Request().InitDir, u"/a/");
    EXPECT_EQ(FaultIn(next.Browse()), nullptr);
    EXPECT_EQ(Request().InitDir, u"C:\\") << "its own folder comes first";
}

TEST_F(CFileTest, TakesFilterAndFolderFromThePropertiesForKindEightAlone)
{
    struct KindCase
    {
        std::int32_t Kind;
        TextView Filter, InitDir;
    };
    file.Filter = u"Own|*.own";
    file.InitDir = u"/own";
    file.FilterIndex = 3;
    file.Filename = u"old.gif";
    file.DialogTitle = u"Pick";
    const KindCase cases[] = {{1,
                               u"All Files (*.*)|*.*|Graphics Files (*.jpeg, *.jpg, *.gif, *.png)|"
                               u"*.jpeg;*.jpg;*.gif;*.png|GIF Files (*.gif)|*.gif|"
                               u"JPEG Files (*.jpeg, *.jpg)|*.jpeg;*.jpg",
                               u""},
                              {8, u"Own|*.own", u"/own"},
                              {9, u"", u""},
                              {-1, u"", u""}};
    for (const auto& [kind, filter, folder] : cases) {
        dialogs.AnswerOpenFile(std::nullopt);
        EXPECT_EQ(ValueIn(file.BrowseForFile(kind)), u"");
        EXPECT_EQ(Request().Filter, filter);
        EXPECT_EQ(Request().InitDir, folder);
        EXPECT_EQ(Request().Title, u"Pick");
        EXPECT_EQ(Request().FilterIndex, 1);
        EXPECT_EQ(Request().FileName, u"");
    }
}

} // namespace
} // namespace orvane::testing
