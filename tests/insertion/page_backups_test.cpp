#include "insertion/page_backups.h"

#include "disk/disk_file_store.h"
#include "tests/support/doubles.h"
#include "tests/support/test_folder.h"

#include <chrono>

namespace orvane::testing {
namespace {

namespace fs = std::filesystem;

class PageBackupsTest : public ::testing::Test
{
protected:
    PageBackupsTest()
    {
        Put("site/index.html", "the page now", 0);
        Put("site/Backup of index.html", "2", 2);
    }

    /// A file that was written so many days ago.
    void Put(const std::string& name, std::string_view bytes, int days) const
    {
        fs::create_directories(fs::path(Folder.At(name)).parent_path());
        Folder.Put(name, bytes);
        fs::last_write_time(Folder.At(name),
                            fs::file_time_type::clock::now() - std::chrono::hours(24 * days));
    }

    std::string NameInPlace(const std::string& day) const
    {
        return "state/first-backups/" + day + Folder.At("site/index.html");
    }

    std::vector<std::string> Backups() const
    {
        std::vector<std::string> contents;
        for (const PageBackup& backup : BackupsOf(Store, Place, Page))
            contents.push_back(ValueIn(Store.Read(backup.Path)));
        return contents;
    }

    TestFolder Folder;
    PosixCalls Calls;
    DiskFileStore Store{Calls, Folder.TextAt("state")};
    const Text Page = Folder.TextAt("site/index.html");
    const BackupsPlace Place = BackupsPlaceIn(Folder.TextAt("state"), u"2024-05-31");
    FakeDialogs Dialogs;
};

using Contents = std::vector<std::string>;

TEST_F(PageBackupsTest, AreListedNewestFirstWithoutLinksAndOtherPages)
{
    EXPECT_EQ(Backups(), Contents{"2"});
    Put(NameInPlace("2024-05-01"), "30", 30);
    Put(NameInPlace("2024-05-30"), "1", 1);
    Put(NameInPlace("2024-05-29") + "l", "another page", 1);
    Put(NameInPlace("2024-05-28"), "", 3);
    fs::remove(Folder.At(NameInPlace("2024-05-28")));
    Folder.Link(Folder.At("site/index.html"), NameInPlace("2024-05-28"));
    EXPECT_EQ(Backups(), (Contents{"1", "2", "30"}));
    EXPECT_EQ(CompareSizes(12, 12), u"same size");
    EXPECT_EQ(CompareSizes(13, 12), u"1 byte more");
    EXPECT_EQ(CompareSizes(1, 5'000'000'000), u"4999999999 bytes less");
}

TEST_F(PageBackupsTest, ABroughtBackPageCanBeTakenBackAndNoBackupIsEverLost)
{
    const Text beside = BackupPath(Page);
    EXPECT_TRUE(BringBack(Store, Dialogs, Page, beside, Place));
    EXPECT_EQ(Folder.Get("site/index.html"), "2");
    EXPECT_EQ(Backups(), (Contents{"the page now", "2"}));
    EXPECT_FALSE(BringBack(Store, Dialogs, Page, beside, Place)) << "it is there already";
    EXPECT_EQ(Dialogs.TakeSaid().size(), 1u);
    const Text now = BackupsOf(Store, Place, Page).at(0).Path;
    Folder.Put("site/index.html", "edited since");
    EXPECT_TRUE(BringBack(Store, Dialogs, Page, now, Place));
    EXPECT_EQ(Folder.Get("site/index.html"), "the page now");
    const Contents left = Backups();
    EXPECT_EQ(std::set<std::string>(left.begin(), left.end()),
              (std::set<std::string>{"2", "the page now", "edited since"}));
}

TEST_F(PageBackupsTest, APageThatIsGoneComesBackAndNoLinkInTheBackupsPlaceIsFollowed)
{
    fs::permissions(Folder.At("site/Backup of index.html"), fs::perms(0640));
    Put(NameInPlace("2024-05-30"), "1", 1);
    const Text beside = BackupPath(Page);
    const Text aside = Folder.TextAt(NameInPlace("2024-05-30"));
    EXPECT_EQ(PageOfBackup(Store, Place, beside), beside);
    fs::remove(Folder.At("site/index.html"));
    for (const Text& backup : {beside, aside})
        EXPECT_EQ(PageOfBackup(Store, Place, backup), Page);
    EXPECT_TRUE(BringBack(Store, Dialogs, Page, beside, Place));
    EXPECT_EQ(Folder.Get("site/index.html"), "2");
    EXPECT_EQ(Folder.Status("site/index.html").st_mode & 07777, 0640u);
    fs::remove_all(Folder.At("site"));
    EXPECT_TRUE(BringBack(Store, Dialogs, Page, aside, Place));
    EXPECT_EQ(Folder.Get("site/index.html"), "1");
    EXPECT_EQ(Backups(), Contents{"1"}) << "nothing was there to be kept";
    Folder.Put("private", "mine");
    Folder.Link("../private", "site/Backup of index.html");
    EXPECT_FALSE(BringBack(Store, Dialogs, Page, beside, Place));
    EXPECT_EQ(Folder.Get("site/index.html"), "1");
    EXPECT_EQ(Dialogs.TakeSaid(),
              Texts{u"A link has taken the place of this backup.  Orvane does not follow it."});
}

TEST(BringBackTest, APageThatAnotherProgramSavesMeanwhileStaysAsItIs)
{
    /// The other program is at work whenever this one keeps the page.
    struct BusyStore : FakeFileStore
    {
        Done PutPrivate(TextView path, std::string_view bytes) override
        {
            Contents[u"/p.html"] = "theirs";
            return FakeFileStore::PutPrivate(path, bytes);
        }
    } files;
    FakeDialogs dialogs;
    files.Contents = {{u"/p.html", "now"}, {u"/Backup of p.html", "earlier"}};
    EXPECT_FALSE(BringBack(files, dialogs, u"/p.html", u"/Backup of p.html", {u"/kept", u"day"}));
    EXPECT_EQ(files.Contents[u"/p.html"], "theirs");
    ASSERT_EQ(dialogs.Said.size(), 1u);
    EXPECT_TRUE(dialogs.Said[0].starts_with(u"Another application has changed your Web page"));
}

TEST(BackupPathInTest, IsAnotherForEveryPageAndNeverLeavesItsFolder)
{
    const BackupsPlace place{.Folder = u"/state/pages", .Day = u"2001-11-28"};
    EXPECT_EQ(BackupPathIn(place, u"/a/index.html"), u"/state/pages/2001-11-28/a/index.html");
    EXPECT_EQ(BackupPathIn(place, u"/b/index.html"), u"/state/pages/2001-11-28/b/index.html");
    EXPECT_EQ(BackupPathIn(place, u"/a/./b/../index.html"), BackupPathIn(place, u"/a/index.html"));
    EXPECT_EQ(BackupPathIn(place, u"/../../etc/\u0142"), u"/state/pages/2001-11-28/etc/\u0142");
}

} // namespace
} // namespace orvane::testing
