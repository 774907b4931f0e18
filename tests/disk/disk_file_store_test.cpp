#include "disk/disk_file_store.h"
#include "disk/replacement_file.h"
#include "services/drafts.h"
#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace orvane::testing {
namespace {

class DiskFileStoreTest : public ::testing::Test
{
protected:
    Done Replace(std::string_view name, std::string_view bytes = "new")
    {
        return Store.Replace(Folder.TextAt(name), bytes);
    }
    Done Copy(std::string_view from, std::string_view to)
    {
        return Store.Copy(Folder.TextAt(from), Folder.TextAt(to));
    }
    Outcome<std::string> Read(std::string_view name) const
    {
        return Store.Read(Folder.TextAt(name));
    }

    TestFolder Folder;
    PosixCalls Calls;
    DiskFileStore Real{Calls, Folder.TextAt("state")};
    FileStore& Store = Real;
};

Done DoneOf(const Outcome<std::string>& read)
{
    if (const Fault* fault = FaultIn(read))
        return *fault;
    return {};
}

TEST_F(DiskFileStoreTest, GivesEachFailureItsNumber)
{
    Folder.MakeFolder("folder");
    Folder.Put("file", "old");
    Folder.Link("loop", "loop");
    ASSERT_EQ(::mkfifo(Folder.At("pipe").c_str(), 0600), 0);
    struct Row
    {
        const char* Name;
        Fault Reading, Writing;
    };
    constexpr Fault none{};
    const Row rows[] = {{"missing", Fault::FileNotFound, none},
                        {"no/file", Fault::PathNotFound, Fault::PathNotFound},
                        {"file/file", Fault::PathNotFound, Fault::PathNotFound},
                        {"folder", Fault::PathFileAccess, Fault::PathFileAccess},
                        {"folder/", Fault::PathFileAccess, Fault::PathFileAccess},
                        {"pipe", Fault::PathFileAccess, Fault::PathFileAccess},
                        {"loop", Fault::BadFileName, Fault::BadFileName}};
    for (const auto& [name, reading, writing] : rows) {
        EXPECT_EQ(DoneOf(Read(name)), Done(reading)) << name;
        EXPECT_EQ(Copy(name, "file"), Done(reading)) << name;
        EXPECT_FALSE(Store.FileExists(Folder.TextAt(name))) << name;
        EXPECT_EQ(Replace(name), writing == none ? Done() : Done(writing)) << name;
        // A copy follows no link, so that one that leads in a circle gives way to it.
        const bool isFree = writing == none || writing == Fault::BadFileName;
        EXPECT_EQ(Copy("file", name), isFree ? Done() : Done(writing)) << name;
    }
    EXPECT_EQ(Store.Remove(Folder.TextAt("absent")), Done(Fault::FileNotFound));
    EXPECT_EQ(Store.Remove(Folder.TextAt("no/file")), Done(Fault::PathNotFound));
    EXPECT_EQ(Store.Remove(Folder.TextAt("folder")), Done(Fault::PathFileAccess));
    EXPECT_EQ(Store.MakeFolder(Folder.TextAt("folder")), Done(Fault::PathFileAccess));
    EXPECT_EQ(Store.MakeFolder(Folder.TextAt("no/folder")), Done(Fault::PathNotFound));
    EXPECT_EQ(Store.MakeFolder(u"/"), Done(Fault::PathFileAccess));
    EXPECT_EQ(Folder.Get("file"), "old");
}

TEST_F(DiskFileStoreTest, PathsAreUtf8AndWhatCannotBeOneIsABadFileName)
{
    EXPECT_EQ(Store.Replace(Folder.TextAt("") + u"Größe \U0001F600.html", "new"), Done());
    EXPECT_EQ(Folder.Get("Gr\xC3\xB6\xC3\x9F"
                         "e \xF0\x9F\x98\x80.html"),
              "new");
    for (const Text& path : {Text(), Text(u"a\0b", 3), Text(1, char16_t(0xD83D))}) {
        EXPECT_EQ(DoneOf(Store.Read(path)), Done(Fault::BadFileName));
        EXPECT_EQ(Store.Replace(path, ""), Done(Fault::BadFileName));
        EXPECT_EQ(Store.Remove(path), Done(Fault::BadFileName));
        EXPECT_EQ(Store.MakeFolder(path), Done(Fault::BadFileName));
        EXPECT_FALSE(Store.FileExists(path));
    }
}

TEST_F(DiskFileStoreTest, NewFileHasTheModeThatTheUmaskLeaves)
{
    const mode_t before = ::umask(027);
    EXPECT_EQ(Replace("page"), Done());
    EXPECT_EQ(Store.MakeFolder(Folder.TextAt("folder/")), Done());
    ::umask(before);
    EXPECT_EQ(Folder.Status("page").st_mode, S_IFREG | 0640u);
    EXPECT_EQ(Folder.Status("folder").st_mode, S_IFDIR | 0750u);
}

TEST_F(DiskFileStoreTest, ReplacedFileKeepsModeAndOwner)
{
    Folder.Put("page", "old");
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(Folder.At("page").c_str(), 1234, 4321), 0);
    }
    ::chmod(Folder.At("page").c_str(), 0604);
    const auto before = Folder.Status("page");
    EXPECT_EQ(Replace("page"), Done());
    const auto after = Folder.Status("page");
    EXPECT_NE(after.st_ino, before.st_ino) << "it was not written beside and renamed";
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
}

TEST_F(DiskFileStoreTest, AccessListIsKept)
{
    // Version 2; owner rw-, user 1234 r--, group ---, mask r--, others ---.
    const unsigned char list[] = {2,    0,    0,    0,    1,    0,    6,    0,    0xFF, 0xFF, 0xFF,
                                  0xFF, 2,    0,    4,    0,    0xD2, 0x04, 0,    0,    4,    0,
                                  0,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0x10, 0,    4,    0,    0xFF,
                                  0xFF, 0xFF, 0xFF, 0x20, 0,    0,    0,    0xFF, 0xFF, 0xFF, 0xFF};
    constexpr const char* name = "system.posix_acl_access";
    Folder.Put("page", "old");
    if (::setxattr(Folder.At("page").c_str(), name, list, sizeof list, 0) != 0)
        GTEST_SKIP() << "no access lists here";
    EXPECT_EQ(Replace("page"), Done());
    EXPECT_EQ(Folder.Get("page"), "new");
    EXPECT_EQ(::getxattr(Folder.At("page").c_str(), name, nullptr, 0), ssize_t(sizeof list));
}

TEST_F(DiskFileStoreTest, CopyOntoItselfDoesNothing)
{
    Folder.Put("page", "old");
    Folder.Link("page", "link");
    const auto before = Folder.Status("page");
    EXPECT_EQ(Copy("page", "link"), Done());
    EXPECT_EQ(Folder.Status("page").st_ino, before.st_ino);
    EXPECT_EQ(Copy("link", "copy"), Done());
    EXPECT_EQ(Folder.Get("copy"), "old");
}

TEST_F(DiskFileStoreTest, CopyInPiecesCanBeEndedAndLeavesTheOldFileThen)
{
    struct Steps : Progress
    {
        std::size_t Limit = 2;
        std::vector<std::uint64_t> Done;
        bool GoOn(std::uint64_t done, std::uint64_t total) override
        {
            EXPECT_EQ(total, 3'000'000u);
            Done.push_back(done);
            return Done.size() < Limit;
        }
    } steps;
    std::string large(3'000'000, 'x');
    large.back() = 'y';
    Folder.Put("page", "old");
    Folder.Put("large", large);
    const auto copy = [&] {
        return Store.Copy(Folder.TextAt("large"), Folder.TextAt("page"), &steps);
    };
    EXPECT_EQ(copy(), Done(Fault::Cancelled));
    EXPECT_EQ(steps.Done.size(), 2u);
    EXPECT_EQ(Folder.Get("page"), "old");
    EXPECT_EQ(Folder.Names(""), (std::vector<std::string>{"large", "page"}));
    steps.Limit = 9;
    EXPECT_EQ(copy(), Done());
    EXPECT_EQ(steps.Done.back(), large.size());
    EXPECT_TRUE(Folder.Get("page") == large);
}

TEST_F(DiskFileStoreTest, NewFileTakesTheNameAndNothingIsWrittenThroughIt)
{
    Folder.MakeFolder("away");
    Folder.Put("away/file", "theirs", 0600);
    Folder.Link("away/file", "link");
    Folder.HardLink("away/file", "hard-link");
    Folder.Link("away/none", "dangling");
    Folder.Link("away", "link-to-folder");
    Folder.Put("source", "new");
    for (const char* name : {"link", "hard-link", "dangling", "link-to-folder"}) {
        EXPECT_TRUE(Store.IsTaken(Folder.TextAt(name)));
        EXPECT_EQ(Copy("source", name), Done());
        EXPECT_TRUE(S_ISREG(Folder.Status(name).st_mode)) << name;
        EXPECT_EQ(Folder.Get(name), "new");
        EXPECT_EQ(Folder.Get("away/file"), "theirs");
    }
    WriteDraftFile(Store, Folder.TextAt("state/drafts/Password.txt"), u"new");
    for (const char* folder : {"state", "state/drafts"})
        EXPECT_EQ(Folder.Status(folder).st_mode & 07777, 0700u);
    Folder.Link("../../away/file", "state/drafts/Popup.txt");
    for (const char* name : {"state/drafts/Password.txt", "state/drafts/Popup.txt"}) {
        WriteDraftFile(Store, Folder.TextAt(name), u"new");
        EXPECT_EQ(Folder.Status(name).st_mode, S_IFREG | 0600u);
        EXPECT_EQ(Folder.Get(name), "new");
    }
    EXPECT_EQ(Folder.Get("away/file"), "theirs");
    EXPECT_EQ(Folder.Names("away"), std::vector<std::string>{"file"});
    EXPECT_FALSE(Store.IsTaken(Folder.TextAt("away")));
    EXPECT_FALSE(Store.IsTaken(Folder.TextAt("none")));
}

TEST_F(DiskFileStoreTest, NewFileGivesNobodyMoreThanTheOneThatItIsLike)
{
    Folder.Put("page", "old", 0604);
    EXPECT_EQ(Store.PutNew(Folder.TextAt("backup"), "old", Folder.TextAt("page")), Done());
    EXPECT_EQ(Folder.Status("backup").st_mode & 07777, 0604u);
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs a second user";
    ASSERT_EQ(::chmod(Folder.At("").c_str(), 0777), 0);
    ASSERT_EQ(::chmod(Folder.At("page").c_str(), 0664), 0);
    const OrdinaryUser user;
    EXPECT_EQ(Store.PutNew(Folder.TextAt("other"), "old", Folder.TextAt("page")), Done());
    EXPECT_EQ(Folder.Status("other").st_mode & 07777, 0644u);
}

/// A disk on which another program saves the page while the last new file is synced.
class BusyCalls : public PosixCalls
{
public:
    explicit BusyCalls(const TestFolder& folder) : m_folder(folder) {}
    Error Sync(int descriptor) override
    {
        m_folder.Put("page", "saved");
        return PosixCalls::Sync(descriptor);
    }

private:
    const TestFolder& m_folder;
};

/// A disk on which another program saves the page, twice, directly before names are exchanged.
class LateCalls : public PosixCalls
{
public:
    explicit LateCalls(const TestFolder& folder) : m_folder(folder) {}
    Error Rename(const std::string& from, const std::string& to, unsigned flags) override
    {
        if (m_saves < 2) {
            m_folder.Put("theirs", "save " + std::to_string(++m_saves));
            std::filesystem::rename(m_folder.At("theirs"), m_folder.At("page"));
        }
        return PosixCalls::Rename(from, to, flags);
    }

private:
    const TestFolder& m_folder;
    int m_saves = 0;
};

/// A file system that can neither exchange names nor set permissions.
class PoorCalls : public PosixCalls
{
public:
    Error Rename(const std::string& from, const std::string& to, unsigned flags) override
    {
        return flags == 0 ? PosixCalls::Rename(from, to, flags)
                          : std::make_error_code(std::errc::invalid_argument);
    }
    Error ChangeMode(int, mode_t) override
    {
        return std::make_error_code(std::errc::operation_not_permitted);
    }
};

TEST_F(DiskFileStoreTest, ExchangeLeavesWhatAnotherProgramSavedInTheLastMoment)
{
    BusyCalls busy(Folder);
    DiskFileStore store(busy, Folder.TextAt("state"));
    for (const bool isInPlace : {false, true}) {
        Folder.Put("page", "older");
        if (isInPlace)
            Folder.HardLink("page", "alias");
        EXPECT_EQ(ValueIn(store.Exchange(Folder.TextAt("page"), "older", "new")), false);
        EXPECT_EQ(Folder.Get("page"), "saved");
        EXPECT_EQ(Folder.Names("").size(), isInPlace ? 2u : 1u);
    }
    EXPECT_EQ(ValueIn(store.Exchange(Folder.TextAt("gone"), "older", "new")), false);
    EXPECT_EQ(ValueIn(Store.Exchange(Folder.TextAt("page"), "saved", "new")), true);
    EXPECT_EQ(Folder.Get("page"), "new");
    std::filesystem::remove(Folder.At("alias"));
    LateCalls late(Folder);
    EXPECT_EQ(ValueIn(DiskFileStore(late, u"").Exchange(Folder.TextAt("page"), "new", "newer")),
              false);
    EXPECT_EQ(Folder.Get("page"), "save 2");
    EXPECT_EQ(Folder.Names(""), std::vector<std::string>{"page"});
}

TEST_F(DiskFileStoreTest, WorksWhereNamesCannotBeExchangedAndPermissionsNotSet)
{
    PoorCalls calls;
    DiskFileStore store(calls, u"");
    const Text page = Folder.TextAt("page");
    Folder.Put("page", "old");
    Folder.Put("shut", "old", 0640);
    EXPECT_EQ(store.PutNew(Folder.TextAt("backup"), "old", Folder.TextAt("shut")), Done());
    EXPECT_EQ(Folder.Status("backup").st_mode & 07777, 0600u);
    EXPECT_EQ(ValueIn(store.Exchange(Folder.TextAt("shut"), "old", "new")), true);
    EXPECT_EQ(ValueIn(store.Read(page)), "old");
    EXPECT_EQ(ValueIn(store.Exchange(page, "OLD", "new")), false);
    EXPECT_EQ(ValueIn(store.Exchange(page, "old", "new")), true);
    EXPECT_EQ(ValueIn(store.PutIfFree(page, "newer", page)), false);
    EXPECT_EQ(ValueIn(store.PutIfFree(Folder.TextAt("second"), "new", page)), true);
    EXPECT_EQ(Folder.Get("page"), Folder.Get("second"));
    EXPECT_EQ(Folder.Get("page"), Folder.Get("shut"));
    EXPECT_EQ(Folder.Names("").size(), 4u);
}

TEST_F(DiskFileStoreTest, SavesAfterTheReadingAreSeenWhateverTheyKeep)
{
    PosixCalls calls;
    DiskFileStore store(calls, u"");
    const Text page = Folder.TextAt("page");
    Folder.Put("page", "old");
    EXPECT_EQ(ValueIn(store.Read(page)), "old");
    EXPECT_EQ(ValueIn(store.Exchange(page, "OLD", "new")), false) << "never read so";
    EXPECT_EQ(Folder.Get("page"), "old");

    EXPECT_EQ(ValueIn(store.Read(page)), "old");
    const auto time = std::filesystem::last_write_time(Folder.At("page"));
    Folder.Put("page", "ALD");
    std::filesystem::last_write_time(Folder.At("page"), time);
    EXPECT_EQ(ValueIn(store.Exchange(page, "old", "new")), false) << "size and time are kept";
    EXPECT_EQ(Folder.Get("page"), "ALD");
    EXPECT_EQ(Folder.Names("").size(), 1u);
}

/// A disk that keeps the modes with which temporary files were made.
class ModesOfFiles : public PosixCalls
{
public:
    std::vector<mode_t> Modes;
    Error Open(const std::string& path, int flags, mode_t mode, int& descriptor) override
    {
        if (IsTemporaryName(path.substr(path.rfind('/') + 1)))
            Modes.push_back(mode);
        return PosixCalls::Open(path, flags, mode, descriptor);
    }
};

TEST_F(DiskFileStoreTest, WhoMayNotReadAPageMayNotReadItWhileItIsWritten)
{
    for (const mode_t mode : {0644u, 0664u, 0640u, 0604u, 0600u}) {
        ModesOfFiles calls;
        DiskFileStore store(calls, u"");
        Folder.Put("page", "old", mode);
        EXPECT_EQ(ValueIn(store.Exchange(Folder.TextAt("page"), "old", "new")), true);
        EXPECT_EQ(Folder.Status("page").st_mode & 07777, mode);
        ASSERT_FALSE(calls.Modes.empty());
        EXPECT_EQ(calls.Modes.front(), (mode & 0444) == 0444 ? 0644u : 0600u);
    }
}

/// A disk on which somebody guesses the name of a temporary file and lays a link there.
class GuessedCalls : public PosixCalls
{
public:
    explicit GuessedCalls(std::string victim) : m_victim(std::move(victim)) {}
    Error Open(const std::string& path, int flags, mode_t mode, int& descriptor) override
    {
        if (IsTemporaryName(path.substr(path.rfind('/') + 1)) && ::access(path.c_str(), F_OK) != 0)
            std::filesystem::create_hard_link(m_victim, path);
        return PosixCalls::Open(path, flags, mode, descriptor);
    }

private:
    std::string m_victim;
};

TEST_F(DiskFileStoreTest, TemporaryFileIsNeverOneThatLiesThere)
{
    Folder.Put("victim", "theirs");
    Folder.Put("page", "old");
    GuessedCalls calls(Folder.At("victim"));
    DiskFileStore store(calls, Folder.TextAt("state"));
    EXPECT_EQ(store.Replace(Folder.TextAt("page"), "new"), Done(Fault::PathFileAccess));
    EXPECT_EQ(Folder.Get("page"), "old");
    EXPECT_EQ(Folder.Get("victim"), "theirs");
}

TEST_F(DiskFileStoreTest, FileTooLargeForMemoryIsRefused)
{
    Folder.Put("page", "");
    ASSERT_EQ(::truncate(Folder.At("page").c_str(), (512l << 20) + 1), 0);
    EXPECT_EQ(DoneOf(Read("page")), Done(Fault::OutOfMemory));
}

TEST_F(DiskFileStoreTest, ListsFilesAndFoldersSortedIgnoringCase)
{
    for (const char* name : {"b.gif", "A.gif", "C.gif", "\xFF.gif", ".orvane-12.recovery"})
        Folder.Put(name, "");
    for (const char* name : {"Zoo", "art"})
        Folder.MakeFolder(name);
    ASSERT_EQ(::mkfifo(Folder.At("pipe").c_str(), 0600), 0);
    Folder.Link("A.gif", "a-link");
    Folder.Link("art", "more");
    Folder.Link("nowhere", "dangling");
    EXPECT_EQ(Store.Files(Folder.TextAt("")),
              (std::vector<Text>{u"a-link", u"A.gif", u"b.gif", u"C.gif"}));
    EXPECT_EQ(ValueIn(Store.SubFolders(Folder.TextAt(""))),
              (std::vector<Text>{u"art", u"more", u"Zoo"}));
    EXPECT_EQ(std::get<Fault>(Store.SubFolders(Folder.TextAt("none"))), Fault::PathNotFound);
    EXPECT_EQ(std::get<Fault>(Store.SubFolders(Folder.TextAt("b.gif"))), Fault::PathNotFound);
    EXPECT_TRUE(Store.Files(Folder.TextAt("none")).empty());
    EXPECT_TRUE(Store.FolderExists(Folder.TextAt("more")));
    EXPECT_FALSE(Store.FolderExists(Folder.TextAt("b.gif")));
}

TEST_F(DiskFileStoreTest, RemovesOnlyTemporaryFilesThatNobodyWrites)
{
    for (const char* name : {".orvane-0123456789abcdef.tmp", ".orvane-fedcba9876543210.tmp",
                             ".orvane-page.tmp", ".orvane-0123456789abcdeg.tmp",
                             ".orvane-0123456789abcdef.htm", ".backup-0123456789abcdef.tmp"})
        Folder.Put(name, "");
    const int writer = ::open(Folder.At(".orvane-fedcba9876543210.tmp").c_str(), O_RDWR);
    ASSERT_EQ(::flock(writer, LOCK_EX), 0);
    EXPECT_EQ(Replace("page"), Done());
    ::close(writer);
    EXPECT_EQ(Folder.Names(""), (std::vector<std::string>{
                                    ".backup-0123456789abcdef.tmp", ".orvane-0123456789abcdef.htm",
                                    ".orvane-0123456789abcdeg.tmp", ".orvane-fedcba9876543210.tmp",
                                    ".orvane-page.tmp", "page"}));
}

/// A disk on which nothing can be renamed or removed while it is stuck.
class StuckCalls : public PosixCalls
{
public:
    Error Rename(const std::string& from, const std::string& to, unsigned flags) override
    {
        return IsStuck ? std::make_error_code(std::errc::io_error)
                       : PosixCalls::Rename(from, to, flags);
    }
    Error Remove(const std::string& path) override
    {
        return IsStuck ? std::make_error_code(std::errc::io_error) : PosixCalls::Remove(path);
    }
    Error List(const std::string& path, std::vector<FolderEntry>& entries) override
    {
        ++Lists;
        return PosixCalls::List(path, entries);
    }
    bool IsStuck = false;
    int Lists = 0;
};

TEST_F(DiskFileStoreTest, LooksThroughAFolderOnceUnlessItLeftATemporaryFileItself)
{
    StuckCalls calls;
    DiskFileStore store(calls, u"");
    const Text page = Folder.TextAt("page");
    EXPECT_EQ(store.Replace(page, "one"), Done());
    EXPECT_EQ(store.Replace(page, "two"), Done());
    EXPECT_EQ(calls.Lists, 1);
    calls.IsStuck = true;
    EXPECT_NE(store.Replace(page, "three"), Done());
    EXPECT_EQ(Folder.Names("").size(), 2u);
    calls.IsStuck = false;
    EXPECT_EQ(store.Replace(page, "three"), Done());
    EXPECT_EQ(Folder.Names(""), std::vector<std::string>{"page"});
}

} // namespace
} // namespace orvane::testing
