#pragma once

#include "core/file_store.h"
#include "tests/support/faulty_calls.h"
#include "tests/support/test_folder.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace orvane::testing {

/// What the author hears of one writing.
struct Report
{
    std::vector<Text> Said;
    std::vector<Text> Missing; ///< names of files that could not be brought to their folder
    bool IsComplete = false;   ///< the command went to its end and nothing is missing
    bool operator==(const Report&) const = default;
};

using Contents = std::map<std::string, std::string>;

/// One way on which files come to the disk: in a folder with the empty folders "page" and "other".
struct WritingWay
{
    const char* Name;
    std::function<void(const TestFolder&)> Prepare;
    std::function<Report(FileStore&, const TestFolder&)> Run;
    /// The files that a run without trouble makes or changes.
    std::function<Contents(const TestFolder&)> Written;
    bool IsRepeatable = false; ///< a second run makes nothing else of the files
    bool IsPrivate = false;    ///< not everybody may read the page, nor what is left beside it
    /// How the name of the backup begins without which no page is written.
    const char* Backup = "page/Backup of index.html";
};

void PrintTo(const WritingWay& way, std::ostream* out);

/// Runs a way again and again, each time on fresh files with another trouble at another call, and
/// expects: every name stands for what it did before or for what it does after a run without
/// trouble, a page is not written without its backup, and the author is told the truth.
class FaultTrials
{
public:
    explicit FaultTrials(const WritingWay& way);

    /// Every trouble at every call; gives the number of trials.
    int PlayAll() const;

private:
    /// The mode of each name, and a file's bytes or where a link leads.
    struct Entry
    {
        mode_t Mode = 0;
        std::string Content;
        bool operator==(const Entry&) const = default;
    };
    struct Tree
    {
        std::map<std::string, Entry> Names;
        std::set<std::string> Litter; ///< names of the file store's own
    };
    class Scene;

    int Try(Trouble trouble, int call) const;
    void ExpectWhole(const Scene& scene, FaultyCalls& calls) const;
    void ExpectOldOrNew(const Tree& tree) const;
    void ExpectToldTheTruth(const Tree& tree, const Report& heard, Trouble trouble) const;
    static bool AreSame(const Tree& one, const Tree& other, const std::string& name);

    const WritingWay& m_way;
    OrdinaryUser m_user;
    Tree m_before;
    Tree m_after;
    Report m_heard;
};

} // namespace orvane::testing
