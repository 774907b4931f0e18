#include "services/folder_list.h"

#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

class FolderListTest : public ::testing::Test
{
protected:
    FolderListTest()
    {
        m_files.Folders = {u"/home",      u"/home/me",      u"/home/me/b",
                           u"/home/me/A", u"/home/me/.git", u"/home/me/.git/x"};
        for (const TextView name : {u"b.GIF", u"A.jpg", u"c.png", u".hidden.gif", u"my pic.Jpg"})
            m_files.Contents[Join({u"/home/me/", name})] = "";
    }

    FakeFileStore m_files;
};

TEST_F(FolderListTest, ShowsTheWayDownAndTheSubFolders)
{
    const auto list = ListFolders(m_files, u"/home//me/");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->Current, 2u);
    EXPECT_EQ(list->Rows, (std::vector<FolderRow>{{u"/", u"/", 0},
                                                  {u"home", u"/home", 1},
                                                  {u"me", u"/home/me", 2},
                                                  {u"A", u"/home/me/A", 3},
                                                  {u"b", u"/home/me/b", 3}}));
    EXPECT_EQ(ListFolders(m_files, u"/home/me/.git")->Rows.back().Path, u"/home/me/.git/x");
}

TEST_F(FolderListTest, GivesNothingForAFolderThatCannotBeShown)
{
    m_files.FailOn(u"/home/me/b", Fault::PermissionDenied);
    for (const TextView path : {u"", u"c:\\", u"home/me", u"/home/gone", u"/home/me/b"})
        EXPECT_EQ(ListFolders(m_files, path), std::nullopt) << ToUtf8(path);
}

TEST_F(FolderListTest, ListsTheFilesThatFitTheMasksIgnoringCase)
{
    EXPECT_EQ(ListFiles(m_files, u"/home/me", u"*.jpg;*.gif"),
              (Texts{u"A.jpg", u"b.GIF", u"my pic.Jpg"}));
}

TEST_F(FolderListTest, DriveIsTheLongestOneThatHoldsTheFolder)
{
    const Texts drives = {u"/", u"/media/usb", u"/media"};
    EXPECT_EQ(DriveOf(drives, u"/media/usb"), 1u);
    EXPECT_EQ(DriveOf(drives, u"/media/usb/x"), 1u);
    EXPECT_EQ(DriveOf(drives, u"/media/usb2"), 2u);
    EXPECT_EQ(DriveOf(drives, u"/mediator"), 0u);
    EXPECT_EQ(DriveOf({}, u"/"), std::nullopt);
}

} // namespace
} // namespace orvane::testing
