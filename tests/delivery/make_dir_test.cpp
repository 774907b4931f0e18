#include "delivery/make_dir.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

class MakeDirTest : public ::testing::Test
{
protected:
    MakeDirEnd Enter(TextView folder, TextView field)
    {
        return MakeDirEnter(folder, field, disk, dialogs);
    }

    FakeDialogs dialogs;
    FakeFileStore disk;
};

TEST_F(MakeDirTest, CreatesTheTrimmedNameAndMovesThere)
{
    EXPECT_EQ(Enter(u"/site", u"  my pics "), (MakeDirEnd{true, u"/site/my pics"}));
    EXPECT_TRUE(disk.FolderExists(u"/site/my pics"));
    EXPECT_EQ(dialogs.Said, std::vector<Text>());
}

TEST_F(MakeDirTest, DoublesNoSeparatorBelowARoot)
{
    EXPECT_EQ(Enter(u"/", u"pics"), (MakeDirEnd{true, u"/pics"}));
}

TEST_F(MakeDirTest, AsksForANameAndStays)
{
    EXPECT_EQ(Enter(u"/site", u""), (MakeDirEnd{false, std::nullopt}));
    EXPECT_EQ(dialogs.Said,
              std::vector<Text>{u"Please enter a new folder name for Orvane to create."});
}

TEST_F(MakeDirTest, ClosesSilentlyOnBlanksAlone)
{
    disk.Folders = {u"/site", u"/site/"};
    EXPECT_EQ(Enter(u"/site", u"   "), (MakeDirEnd{true, std::nullopt}));
    EXPECT_EQ(dialogs.Said, std::vector<Text>());
}

TEST_F(MakeDirTest, TakesAnExistingFolderAndStaysOutOfOneThatFailed)
{
    disk.Folders = {u"/site/pics"};
    EXPECT_EQ(Enter(u"/site", u"pics"), (MakeDirEnd{true, u"/site/pics"}));
    disk.FailOn(u"/site/new", Fault::PermissionDenied);
    EXPECT_EQ(Enter(u"/site", u"new"), (MakeDirEnd{true, std::nullopt}));
    EXPECT_EQ(dialogs.Said, std::vector<Text>());
}

} // namespace
} // namespace orvane::testing
