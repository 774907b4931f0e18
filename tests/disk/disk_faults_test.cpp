#include "disk/disk_file_store.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

#include <sys/wait.h>
#include <unistd.h>

namespace orvane::testing {
namespace {

const std::string oldPage = "<html>" + std::string(300, 'o') + "</html>\r\n";
const std::string newPage = "<html>" + std::string(500, 'n') + "</html>\r\n";
const std::string longPage = "<html>" + std::string(700, 'l') + "</html>\r\n";

/// One way on which a page is written, "page/index.html" from its old bytes to the new ones.
struct Way
{
    const char* Name;
    std::function<void(const TestFolder&)> Prepare;
    bool IsNew = false;
    bool IsCopy = false;
    std::string_view Old = oldPage;
};

Done Write(const Way& way, Disk& disk, const TestFolder& folder, std::string_view bytes = newPage)
{
    DiskFileStore store(disk, folder.TextAt("state"));
    return way.IsCopy ? store.Copy(folder.TextAt("source"), folder.TextAt("page/index.html"))
                      : store.Replace(folder.TextAt("page/index.html"), bytes);
}

void PutPage(const TestFolder& folder)
{
    folder.Put("page/index.html", oldPage, 0640);
}

void PutHardLinked(const TestFolder& folder)
{
    PutPage(folder);
    folder.HardLink("page/index.html", "page/alias.html");
}

/// Lets the page's writer be killed while the page holds neither the old bytes nor the new ones.
void LeaveHalfWritten(const TestFolder& folder)
{
    for (int call = 1; folder.Get("page/index.html") == oldPage;) {
        FaultyDisk disk;
        disk.Arm(Trouble::KillHalfway, call);
        EXPECT_THROW(std::ignore = Write({}, disk, folder, longPage), Killed);
        call = disk.NextCall();
    }
}

const Way ways[] = {
    {.Name = "NewFile", .Prepare = [](const TestFolder&) {}, .IsNew = true},
    {.Name = "OldFile", .Prepare = PutPage},
    {.Name = "ShrinkingFile",
     .Prepare = [](const TestFolder& f) { f.Put("page/index.html", longPage, 0640); },
     .Old = longPage},
    {.Name = "Link",
     .Prepare =
         [](const TestFolder& f) {
             f.Put("other/real.html", oldPage, 0640);
             f.Link("../other/real.html", "page/index.html");
         }},
    {.Name = "DanglingLink",
     .Prepare = [](const TestFolder& f) { f.Link("../other/real.html", "page/index.html"); },
     .IsNew = true},
    {.Name = "HardLinked", .Prepare = PutHardLinked},
    {.Name = "ShrinkingHardLinked",
     .Prepare =
         [](const TestFolder& f) {
             f.Put("page/index.html", longPage, 0640);
             f.HardLink("page/index.html", "page/alias.html");
         },
     .Old = longPage},
    {.Name = "LockedFolder",
     .Prepare =
         [](const TestFolder& f) {
             PutPage(f);
             ::chmod(f.At("page").c_str(), 0555);
         }},
    {.Name = "HardLinkedInLockedFolder",
     .Prepare =
         [](const TestFolder& f) {
             PutHardLinked(f);
             ::chmod(f.At("page").c_str(), 0555);
         }},
    {.Name = "HalfWritten",
     .Prepare =
         [](const TestFolder& f) {
             PutHardLinked(f);
             LeaveHalfWritten(f);
         }},
    {.Name = "HalfWrittenInLockedFolder",
     .Prepare =
         [](const TestFolder& f) {
             PutPage(f);
             ::chmod(f.At("page").c_str(), 0555);
             LeaveHalfWritten(f);
         }},
    {.Name = "Leftover",
     .Prepare =
         [](const TestFolder& f) {
             PutPage(f);
             f.Put("page/.orvane-0123456789abcdef.tmp", "half", 0600);
         }},
    {.Name = "CopyToNewFile",
     .Prepare = [](const TestFolder& f) { f.Put("source", newPage); },
     .IsNew = true,
     .IsCopy = true},
    {.Name = "CopyToOldFile",
     .Prepare =
         [](const TestFolder& f) {
             f.Put("source", newPage);
             PutPage(f);
         },
     .IsCopy = true},
    {.Name = "CopyToHardLinked",
     .Prepare =
         [](const TestFolder& f) {
             f.Put("source", newPage);
             PutHardLinked(f);
         },
     .IsCopy = true},
};

/// Files prepared for one way, seen through fresh eyes after the trouble.
class Scene
{
public:
    explicit Scene(const Way& way) : Folder(FastDisk()), m_way(way)
    {
        Folder.MakeFolder("page");
        Folder.MakeFolder("other");
        way.Prepare(Folder);
        m_namesAtFirst = Names();
    }

    TestFolder Folder;

    /// What the next start of the program finds in the page; nothing when it is missing.
    std::optional<std::string> Page(Disk& disk) const
    {
        const auto read =
            DiskFileStore(disk, Folder.TextAt("state")).Read(Folder.TextAt("page/index.html"));
        if (const Fault* fault = FaultIn(read)) {
            EXPECT_EQ(*fault, Fault::FileNotFound);
            return std::nullopt;
        }
        return ValueIn(read);
    }

    std::optional<std::string> OldPage() const
    {
        return m_way.IsNew ? std::nullopt : std::optional<std::string>(m_way.Old);
    }

    /// The page is whole, and still so when the power goes off after a first look at it.
    void ExpectOldOrNew(FaultyDisk& disk) const
    {
        for (int look = 0; look < 2; ++look) {
            const auto page = Page(disk);
            EXPECT_TRUE(page == newPage || page == OldPage()) << page.value_or("missing");
            ExpectKept();
            disk.CutPower();
        }
    }

    /// Nothing but the page has changed, and the page in nothing but its bytes.
    void ExpectKept() const
    {
        if (m_way.IsCopy) {
            EXPECT_EQ(Folder.Get("source"), newPage);
        }
        if (!m_way.IsNew && Folder.Get("page/index.html")) {
            FileStatus status{};
            EXPECT_EQ(::stat(Folder.At("page/index.html").c_str(), &status), 0);
            EXPECT_EQ(status.st_mode & 07777, 0640u);
        }
        if (const auto alias = Folder.Get("page/alias.html")) {
            EXPECT_EQ(alias, Folder.Get("page/index.html"));
        }
    }

    /// What lies beside a page that not everybody may read cannot be read by everybody either.
    void ExpectNothingShown() const
    {
        for (const auto& [folder, names] : Names())
            for (const std::string& name : names)
                if (!m_way.IsNew && name.starts_with(".orvane-")) {
                    EXPECT_EQ(Folder.Status(folder + "/" + name).st_mode & 07, 0u) << name;
                }
    }

    /// The author's names are there and no others, but that what was litter before may still be.
    void ExpectNoLitter(bool isWritten) const
    {
        NamesByFolder names = Names();
        for (const auto& [folder, before] : m_namesAtFirst)
            for (const std::string& name : before)
                if (name.starts_with(".orvane-"))
                    names[folder].insert(name);
        EXPECT_EQ(names, NamesAfter(isWritten, true));
    }

    /// The next writing goes well, and nothing of an earlier one is left.
    void ExpectWritable() const
    {
        FaultyDisk disk;
        EXPECT_FALSE(FaultIn(Write(m_way, disk, Folder)));
        EXPECT_EQ(Page(disk), newPage);
        ExpectKept();
        EXPECT_EQ(Names(), NamesAfter(true, false));
    }

private:
    using NamesByFolder = std::map<std::string, std::set<std::string>>;

    NamesByFolder Names() const
    {
        NamesByFolder names{{"page", {}}, {"other", {}}, {"state", {}}};
        for (auto& [folder, entries] : names)
            for (std::string& name : Folder.Names(folder))
                entries.insert(std::move(name));
        return names;
    }

    NamesByFolder NamesAfter(bool isWritten, bool withLitter) const
    {
        NamesByFolder names = m_namesAtFirst;
        if (isWritten && m_way.IsNew && names["page"].empty())
            names["page"].insert("index.html");
        else if (isWritten && m_way.IsNew)
            names["other"].insert("real.html");
        for (auto& [folder, entries] : names)
            std::erase_if(entries, [&](const std::string& name) {
                return !withLitter && name.starts_with(".orvane-");
            });
        return names;
    }

    const Way& m_way;
    NamesByFolder m_namesAtFirst;
};

class DiskFaultsTest : public ::testing::TestWithParam<Way>
{
    OrdinaryUser m_user;
};

/// The fault that the author is told of.
Fault FaultOf(Trouble trouble)
{
    switch (trouble) {
    case Trouble::DiskFull:
    case Trouble::FullHalfway:
        return Fault::DiskFull;
    case Trouble::NoPermission:
        return Fault::PermissionDenied;
    default:
        return Fault::DeviceError;
    }
}

void ExpectToldTheTruth(const Scene& scene, FaultyDisk& disk, const Done& done, Trouble trouble)
{
    const Fault* fault = FaultIn(done);
    // A disk that stays broken leaves no way back, but the page is whole.
    if (fault && trouble == Trouble::BrokenFromThere)
        return;
    if (fault) {
        EXPECT_FALSE(trouble == Trouble::Interrupted || trouble == Trouble::ShortWrite);
        EXPECT_EQ(*fault, FaultOf(trouble));
        // A disk that stayed full may leave the old bytes in their recovery copy alone.
        if (trouble != Trouble::FullHalfway)
            scene.ExpectNoLitter(false);
        EXPECT_EQ(scene.Page(disk), scene.OldPage()) << "reported as failed";
        scene.ExpectNoLitter(false);
    } else {
        disk.CutPower();
        EXPECT_EQ(scene.Page(disk), newPage) << "reported as written";
        scene.ExpectNoLitter(true);
    }
}

TEST_P(DiskFaultsTest, PageHoldsTheOldOrTheNewBytesWhateverGoesWrongAtAnyCall)
{
    int cases = 0;
    for (const Trouble trouble : allTroubles) {
        for (int call = 1; call > 0 && !HasFailure(); ++cases) {
            SCOPED_TRACE(std::string(NameOf(trouble)) + " at call " + std::to_string(call));
            const Scene scene(GetParam());
            FaultyDisk disk;
            disk.Arm(trouble, call);
            std::optional<Done> done;
            try {
                done = Write(GetParam(), disk, scene.Folder);
            } catch (const Killed&) {
            }
            disk.Heal();
            call = disk.NextCall();
            EXPECT_EQ(disk.OpenDescriptors(), 0);
            scene.ExpectNothingShown();
            if (done && !IsDeath(trouble))
                ExpectToldTheTruth(scene, disk, *done, trouble);
            scene.ExpectOldOrNew(disk);
            scene.ExpectWritable();
        }
    }
    RecordProperty("cases", cases);
    EXPECT_GT(cases, 100);
}

INSTANTIATE_TEST_SUITE_P(Ways, DiskFaultsTest, ::testing::ValuesIn(ways),
                         [](const auto& way) { return way.param.Name; });

/// The death that the double plays by throwing is that of a real process.
TEST(DiskDeathTest, ProcessThatEndsAtAnyCallLeavesTheOldOrTheNewBytes)
{
    constexpr int killed = 7;
    const Way hardLinked{.Name = "HardLinked", .Prepare = PutHardLinked};
    int status = 0;
    int call = 0;
    do {
        SCOPED_TRACE("call " + std::to_string(++call));
        const Scene scene(hardLinked);
        const pid_t child = ::fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            FaultyDisk disk;
            disk.ExitAtDeath(killed);
            disk.Arm(Trouble::Kill, call);
            ::_exit(FaultIn(Write(hardLinked, disk, scene.Folder)) ? 1 : 0);
        }
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        FaultyDisk disk;
        scene.ExpectOldOrNew(disk);
        scene.ExpectWritable();
    } while (WIFEXITED(status) && WEXITSTATUS(status) == killed && !HasFailure());
    EXPECT_EQ(status, 0);
    EXPECT_GT(call, 20);
}

} // namespace
} // namespace orvane::testing
