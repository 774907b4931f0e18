#include "disk/disk_file_store.h"
#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace orvane::testing {
namespace {

class OrdinaryUserTest : public ::testing::Test
{
protected:
    OrdinaryUser User;
    TestFolder Folder;
    PosixCalls Calls;
    DiskFileStore Store{Calls, Folder.TextAt("state")};
};

TEST_F(OrdinaryUserTest, ReadOnlyFileIsNotReplacedButItsBackupIs)
{
    Folder.Put("page", "old", 0444);
    EXPECT_EQ(Store.Replace(Folder.TextAt("page"), "new"), Done(Fault::PermissionDenied));
    EXPECT_EQ(Folder.Get("page"), "old");
    EXPECT_EQ(Folder.Names(""), std::vector<std::string>{"page"});
    Folder.Put("backup", "older", 0444);
    EXPECT_EQ(Store.PutNew(Folder.TextAt("backup"), "old", Folder.TextAt("page")), Done());
    EXPECT_EQ(Folder.Status("backup").st_mode & 07777, 0644u) << "who owns it may write it again";
}

TEST_F(OrdinaryUserTest, UnreadableFileOrFolderHasNothingToShow)
{
    Folder.Put("page", "old", 0200);
    Folder.MakeFolder("shut", 0);
    EXPECT_FALSE(Store.FileExists(Folder.TextAt("page")));
    EXPECT_EQ(std::get<Fault>(Store.Read(Folder.TextAt("page"))), Fault::PermissionDenied);
    EXPECT_EQ(std::get<Fault>(Store.Read(Folder.TextAt("shut/page"))), Fault::PermissionDenied);
    EXPECT_EQ(std::get<Fault>(Store.SubFolders(Folder.TextAt("shut"))), Fault::PermissionDenied);
}

TEST_F(OrdinaryUserTest, FileInAFolderThatMayNotBeWrittenIsWrittenInPlace)
{
    Folder.MakeFolder("site");
    Folder.Put("site/page", "old and longer");
    ASSERT_EQ(::chmod(Folder.At("site").c_str(), 0555), 0);
    EXPECT_EQ(Store.Replace(Folder.TextAt("site/page"), "new"), Done());
    EXPECT_EQ(Folder.Get("site/page"), "new");
    EXPECT_EQ(Folder.Status("state").st_mode & 07777, 0700u);
    EXPECT_EQ(Store.Replace(Folder.TextAt("site/other"), "new"), Done(Fault::PermissionDenied));
}

TEST_F(OrdinaryUserTest, WithoutAPlaceForARecoveryCopyNothingIsWritten)
{
    Folder.MakeFolder("site");
    Folder.Put("site/page", "old");
    Folder.Put("file", "");
    Folder.MakeFolder("shut", 0);
    ASSERT_EQ(::chmod(Folder.At("site").c_str(), 0555), 0);
    for (const char* state : {"no/state", "file", "shut", "shut/state"}) {
        DiskFileStore store(Calls, Folder.TextAt(state));
        EXPECT_EQ(store.Replace(Folder.TextAt("site/page"), "new"), Done(Fault::PermissionDenied))
            << state;
        EXPECT_EQ(ValueIn(store.Read(Folder.TextAt("site/page"))), "old") << state;
    }
    EXPECT_EQ(DiskFileStore(Calls, u"").Replace(Folder.TextAt("site/page"), "new"),
              Done(Fault::PermissionDenied));
}

TEST(ForeignFileTest, FileOfAnotherOwnerIsWrittenInPlaceAndStaysTheirs)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs a second user";
    const TestFolder folder;
    folder.MakeFolder("site", 0777);
    folder.Put("site/page", "old", 0666);
    ASSERT_EQ(::chmod(folder.At("").c_str(), 0755), 0);
    const OrdinaryUser user;
    PosixCalls calls;
    EXPECT_EQ(DiskFileStore(calls, u"").Replace(folder.TextAt("site/page"), "new"), Done());
    EXPECT_EQ(folder.Get("site/page"), "new");
    EXPECT_EQ(folder.Status("site/page").st_uid, 0u);
    EXPECT_EQ(folder.Names("site"), std::vector<std::string>{"page"});
}

} // namespace
} // namespace orvane::testing
