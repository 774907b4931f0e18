#include "tests/support/fault_trials.h"

#include "core/file_names.h"
#include "disk/disk_file_store.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::testing {

namespace {

namespace fs = std::filesystem;

constexpr TextView bareWords[] = {u"Permission denied", u"Disk full", u"Device I/O error"};
constexpr TextView otherWords[] = {u"Then try to AutoInsert the special effect again.",
                                   u"Then try again.", u"click the 'Copy' button to copy them.",
                                   u"click the 'Copy' button to copy them to the Orvane folder."};

bool EndsWithOneOf(const auto& endings, TextView words)
{
    return std::any_of(std::begin(endings), std::end(endings),
                       [&](TextView ending) { return words.ends_with(ending); });
}

bool TellsOfTrouble(TextView words)
{
    return EndsWithOneOf(bareWords, words) || EndsWithOneOf(otherWords, words);
}

TextView WordsFor(Trouble trouble)
{
    if (trouble == Trouble::NoPermission)
        return bareWords[0];
    const bool isFull = trouble == Trouble::DiskFull || trouble == Trouble::FullHalfway;
    return bareWords[isFull ? 1 : 2];
}

} // namespace

void PrintTo(const WritingWay& way, std::ostream* out)
{
    *out << way.Name;
}

/// Fresh files for one trial.
class FaultTrials::Scene
{
public:
    explicit Scene(const WritingWay& way) : m_way(way), m_folder(FastDisk())
    {
        m_folder.MakeFolder("page");
        m_folder.MakeFolder("other");
        way.Prepare(m_folder);
    }

    Report Run(SystemCalls& calls) const
    {
        DiskFileStore files(calls, m_folder.TextAt("state"));
        Report heard = m_way.Run(files, m_folder);
        for (Text& words : heard.Said)
            words = FromUtf8(WithoutFolder(ToUtf8(words)));
        return heard;
    }

    Contents Written() const
    {
        Contents written;
        for (const auto& [name, bytes] : m_way.Written(m_folder))
            written[WithoutFolder(name)] = bytes;
        return written;
    }

    /// What the next start of the program finds.
    Tree LookAgain(SystemCalls& calls) const
    {
        const DiskFileStore files(calls, m_folder.TextAt("state"));
        for (const char* folder : {"page", "other", "program"})
            for (const Text& name : files.Files(m_folder.TextAt(folder)))
                std::ignore = files.Read(PathIn(m_folder.TextAt(folder), name));
        return Look();
    }

    Tree Look() const
    {
        Tree tree;
        for (const auto& found : fs::recursive_directory_iterator(m_folder.At(""))) {
            const std::string name = found.path().string().substr(m_folder.At("").size());
            if (name == "state")
                continue;
            Entry entry{.Mode = m_folder.Status(name).st_mode};
            if (S_ISREG(entry.Mode))
                entry.Content = m_folder.Get(name).value_or("cannot be read");
            else if (S_ISLNK(entry.Mode))
                entry.Content = fs::read_symlink(found.path()).string();
            if (!found.path().filename().string().starts_with(".orvane-"))
                tree.Names[WithoutFolder(name)] = entry;
            else if (tree.Litter.insert(name).second && m_way.IsPrivate) {
                EXPECT_EQ(entry.Mode & 07, 0u) << name;
            }
        }
        return tree;
    }

private:
    /// The words without what differs from one test's folder to the next.
    std::string WithoutFolder(std::string words) const
    {
        const std::string own = fs::path(m_folder.At("page")).parent_path().filename();
        if (const auto at = words.find(own); at != std::string::npos)
            words.replace(at, own.size(), "*");
        return words;
    }

    const WritingWay& m_way;
    TestFolder m_folder;
};

FaultTrials::FaultTrials(const WritingWay& way) : m_way(way)
{
    PosixCalls calls;
    m_before = Scene(way).LookAgain(calls);
    const Scene scene(way);
    m_heard = scene.Run(calls);
    m_after = scene.Look();
    Contents written;
    for (const auto& [name, entry] : m_after.Names)
        if (!S_ISDIR(entry.Mode) && !AreSame(m_before, m_after, name))
            written[name] = entry.Content;
    EXPECT_EQ(written, scene.Written());
    EXPECT_TRUE(m_heard.IsComplete && m_after.Litter.empty());
}

int FaultTrials::PlayAll() const
{
    int trials = 0;
    for (const Trouble trouble : allTroubles)
        for (int call = 1; call > 0 && !::testing::Test::HasFailure(); ++trials)
            call = Try(trouble, call);
    return trials;
}

/// Gives the call for the next trial.
int FaultTrials::Try(Trouble trouble, int call) const
{
    SCOPED_TRACE(std::string(NameOf(trouble)) + " at call " + std::to_string(call));
    const Scene scene(m_way);
    FaultyCalls calls;
    calls.Arm(trouble, call);
    std::optional<Report> heard;
    try {
        heard = scene.Run(calls);
    } catch (const Killed&) {
    }
    calls.Heal();
    EXPECT_EQ(calls.OpenDescriptors(), 0);
    if (heard && !IsDeath(trouble)) {
        calls.CutPower();
        ExpectToldTheTruth(scene.LookAgain(calls), *heard, trouble);
    }
    ExpectWhole(scene, calls);
    return calls.NextCall();
}

/// Nothing is torn, even when the power goes off after a first look, and the next run goes well.
void FaultTrials::ExpectWhole(const Scene& scene, FaultyCalls& calls) const
{
    for (int look = 0; look < 2; ++look) {
        ExpectOldOrNew(scene.LookAgain(calls));
        calls.CutPower();
    }
    if (!m_way.IsRepeatable)
        return;
    EXPECT_TRUE(scene.Run(calls).IsComplete);
    const Tree tree = scene.Look();
    EXPECT_TRUE(tree.Litter.empty());
    for (const auto& [name, entry] : m_after.Names)
        EXPECT_TRUE(AreSame(tree, m_after, name)) << name;
}

void FaultTrials::ExpectOldOrNew(const Tree& tree) const
{
    std::map<std::string, Entry> names = m_before.Names;
    names.insert(m_after.Names.begin(), m_after.Names.end());
    names.insert(tree.Names.begin(), tree.Names.end());
    for (const auto& [name, ignored] : names)
        EXPECT_TRUE(AreSame(tree, m_before, name) || AreSame(tree, m_after, name)) << name;
    for (const auto& [name, entry] : m_after.Names)
        for (const char* page : {"page/index.html", "other/real.html"})
            if (name.starts_with(m_way.Backup) && !AreSame(tree, m_before, page)) {
                EXPECT_TRUE(AreSame(tree, m_after, name)) << name;
            }
}

/// Whatever is not as the author wanted it was told, and nothing else.
void FaultTrials::ExpectToldTheTruth(const Tree& tree, const Report& heard, Trouble trouble) const
{
    bool isAllThere = true;
    for (const auto& [name, wanted] : m_after.Names) {
        // That a day's first backup could not be kept is no matter for the author.
        if (name.starts_with("state") || AreSame(tree, m_after, name))
            continue;
        isAllThere = false;
        const Text file = FromUtf8(name.substr(name.find('/') + 1));
        const bool isMissing = std::count(heard.Missing.begin(), heard.Missing.end(), file) > 0;
        EXPECT_TRUE(isMissing || heard.Missing.empty()) << name << " is missing untold";
        EXPECT_FALSE(heard.IsComplete) << name;
    }
    EXPECT_EQ(std::any_of(heard.Said.begin(), heard.Said.end(), TellsOfTrouble), !heard.IsComplete);
    for (const Text& words : heard.Said)
        EXPECT_TRUE(!EndsWithOneOf(bareWords, words) || words.ends_with(WordsFor(trouble)))
            << ToUtf8(words);
    if (heard.IsComplete) {
        EXPECT_EQ(heard, m_heard);
    }
    // A disk that stays broken leaves no way back to the old bytes of a file that is written.
    if (trouble != Trouble::BrokenFromThere) {
        EXPECT_EQ(heard.IsComplete, isAllThere);
        EXPECT_TRUE(std::includes(m_before.Litter.begin(), m_before.Litter.end(),
                                  tree.Litter.begin(), tree.Litter.end()));
    }
    if (trouble == Trouble::Interrupted || trouble == Trouble::ShortWrite) {
        EXPECT_TRUE(heard.IsComplete);
    }
}

bool FaultTrials::AreSame(const Tree& one, const Tree& other, const std::string& name)
{
    const auto first = one.Names.find(name);
    const auto second = other.Names.find(name);
    if (first == one.Names.end() || second == other.Names.end())
        return first == one.Names.end() && second == other.Names.end();
    return first->second == second->second;
}

} // namespace orvane::testing
