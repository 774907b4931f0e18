#include "disk/settings_file.h"

#include "disk/disk_file_store.h"
#include "disk/program_folder.h"
#include "tests/support/doubles.h"
#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

namespace orvane::testing {
namespace {

constexpr TextView orvane = u"Orvane";

TEST(SettingsFileTest, GivesTheDefaultUntilStoredAndKeepsOneFileForEachApplicationAndSectionsApart)
{
    FakeFileStore files;
    SettingsFile settings(files, u"/c");
    EXPECT_EQ(settings.Get(u"Misc", u"DefaultPath", u"c:\\", orvane), u"c:\\");
    settings.Put(u"Misc", u"DefaultPath", u"", orvane);
    EXPECT_EQ(settings.Get(u"Misc", u"DefaultPath", u"c:\\", orvane), u"");
    EXPECT_TRUE(files.Folders.contains(u"/c"));
    settings.Put(u"Apps", u"Override", u"1", orvane);
    settings.Put(u"Misc", u"Override", u"0", orvane);
    settings.Put(u"Miscellaneous", u"EmailAddress", u"a@b.example", u"Page Loom");
    EXPECT_EQ(settings.Get(u"Apps", u"Override", u"", orvane), u"1");
    EXPECT_EQ(settings.Get(u"Misc", u"Override", u"", orvane), u"0");
    EXPECT_EQ(settings.Get(u"Miscellaneous", u"EmailAddress", u"none", orvane), u"none");
    EXPECT_EQ(files.Contents.at(u"/c/Orvane.conf"),
              "[Apps]\nOverride=1\n[Misc]\nDefaultPath=\nOverride=0\n");
    EXPECT_TRUE(files.Contents.contains(u"/c/Page Loom.conf"));
}

TEST(SettingsFileTest, PassesOverWhatIsNoSetting)
{
    const SettingsTable table = ReadSettings("junk\n[Misc\nA=1\n\xFF\n=\nB\n[X]\nA=2");
    EXPECT_EQ(table.at({u"Misc", u"A"}), u"1");
    EXPECT_EQ(table.at({u"X", u"A"}), u"2");
}

TEST(SettingsFileTest, SeesWhatOthersStoreAndReadsAnUnchangedFileOnce)
{
    FakeFileStore memory;
    memory.Contents[u"/c/Orvane.conf"] = "[Misc]\nA=1\n";
    SettingsFile stored(memory, u"/c");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(stored.Get(u"Misc", u"A", u"", orvane), u"1");
    EXPECT_EQ(memory.Reads.size(), 1u);
    memory.Contents.clear();
    EXPECT_EQ(stored.Get(u"Misc", u"A", u"none", orvane), u"none");

    // Written again at once, in place and as long as before, a file may keep its time.
    const TestFolder folder;
    PosixCalls calls;
    DiskFileStore files(calls, u"");
    const SettingsFile settings(files, folder.TextAt(""));
    const auto now = std::filesystem::file_time_type::clock::now();
    for (const char16_t digit : {u'1', u'2', u'3'}) {
        folder.Put("Orvane.conf", "[Misc]\nA=" + ToUtf8(Text(1, digit)) + "\n");
        std::filesystem::last_write_time(folder.At("Orvane.conf"), now);
        EXPECT_EQ(settings.Get(u"Misc", u"A", u"", orvane), Text(1, digit));
    }
}

TEST(SettingsFileTest, UnreadableFileIsNeverWrittenOver)
{
    FakeFileStore files;
    files.Contents[u"/c/Orvane.conf"] = "[Misc]\nHTMLEditor=Other\n";
    files.FailOn(u"/c/Orvane.conf", Fault::PermissionDenied);
    SettingsFile settings(files, u"/c");
    EXPECT_EQ(settings.Get(u"Misc", u"HTMLEditor", u"", orvane), u"");
    settings.Put(u"Misc", u"DefaultPath", u"/x", orvane);
    EXPECT_TRUE(files.Writes.empty());
}

TEST(SettingsFileTest, TwoProgramsThatStoreAtTheSameTimeKeepBoth)
{
    using namespace std::chrono_literals;
    const TestFolder folder;
    // On a disk that is busy for so long, a program gives up its wait, and this tells nothing.
    std::atomic<bool> isSlow = true;
    const auto store = [&](TextView section) {
        PosixCalls calls;
        DiskFileStore files(calls, u"");
        SettingsFile settings(files, folder.TextAt("settings"));
        for (char16_t key = u'a'; key <= u'l'; ++key) {
            const auto start = std::chrono::steady_clock::now();
            settings.Put(section, Text(1, key), u"stored", orvane);
            if (std::chrono::steady_clock::now() - start > 800ms)
                isSlow = true;
            // No program stores without a pause, in which the other one gets the lock.
            std::this_thread::sleep_for(20ms);
        }
    };
    for (int attempt = 0; attempt < 5 && isSlow; ++attempt) {
        isSlow = false;
        std::filesystem::remove_all(folder.At("settings"));
        std::thread other(store, u"other");
        store(u"one");
        other.join();
    }
    const auto settings = ReadSettings(folder.Get("settings/Orvane.conf").value_or(""));
    EXPECT_TRUE(isSlow || settings.size() == 24) << settings.size();
    EXPECT_EQ(folder.Status("settings").st_mode & 07777, 0700u);
}

TEST(SettingsFileTest, AreStoredThoughSomebodyKeepsTheLockAndTheFolderIsShutAtTheNextStart)
{
    const TestFolder folder;
    folder.MakeFolder("settings", 0755);
    PosixCalls calls;
    FileHandle theirs(calls);
    ASSERT_FALSE(theirs.OpenFolder(folder.At("settings")) || theirs.Lock());
    ShutOthersOut(calls, {.Settings = folder.TextAt("settings"), .State = folder.TextAt("none")});
    EXPECT_EQ(folder.Status("settings").st_mode & 07777, 0700u);
    DiskFileStore files(calls, u"");
    SettingsFile settings(files, folder.TextAt("settings"));
    const auto start = std::chrono::steady_clock::now();
    for (const TextView value : {u"first", u"second", u"third", u"fourth"})
        settings.Put(u"Misc", u"HTMLEditor", value, orvane);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
    EXPECT_EQ(settings.Get(u"Misc", u"HTMLEditor", u"", orvane), u"fourth");
}

TEST(ProgramFolderTest, FollowsTheDesktopsConventionsAndItsOwnVariable)
{
    std::map<Text, Text> variables{{u"HOME", u"/home/a"}, {u"XDG_CONFIG_HOME", u"relative"}};
    const Environment environment = [&](TextView name) -> std::optional<Text> {
        const auto found = variables.find(Text(name));
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    };
    const UserFolders folders = FindUserFolders(environment).value();
    EXPECT_EQ(folders.Program, u"/home/a/.local/share/orvane");
    EXPECT_EQ(folders.Settings, u"/home/a/.config/orvane");
    EXPECT_EQ(folders.State, u"/home/a/.local/state/orvane");
    variables[u"XDG_DATA_HOME"] = u"/data";
    EXPECT_EQ(FindUserFolders(environment)->Program, u"/data/orvane");
    for (const TextView home : {u"", u"relative"}) {
        variables[u"HOME"] = home;
        EXPECT_FALSE(FindUserFolders(environment)) << "no place for settings and state";
    }
    variables[u"ORVANE_HOME"] = u"/tmp/o/";
    EXPECT_EQ(FindUserFolders(environment)->Settings, u"/tmp/o/settings");
    variables[u"ORVANE_HOME"] = u"-o";
    EXPECT_EQ(FindUserFolders(environment)->Program,
              PathIn(FromUtf8(std::filesystem::current_path().string()), u"-o"));
}

TEST(ProgramFolderTest, InstallsAFileOnlyWhenItDiffers)
{
    FakeFileStore files;
    EXPECT_EQ(FaultIn(InstallFile(files, u"/p/a", "1")), nullptr);
    EXPECT_EQ(FaultIn(InstallFile(files, u"/p/a", "1")), nullptr);
    EXPECT_EQ(files.Writes.size(), 1u);
    EXPECT_EQ(FaultIn(InstallFile(files, u"/p/a", "2")), nullptr);
    EXPECT_EQ(files.Contents.at(u"/p/a"), "2");
}

} // namespace
} // namespace orvane::testing
