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

/// What the author was told while files were written, and the result.
struct Report
{
    std::vector<Text> Said;    ///< the words of every message
    std::vector<Text> Missing; ///< names of files that could not be brought to their folder
    bool IsComplete = false;   ///< the command went to its end and nothing is missing
    bool operator==(const Report&) const = default;
};

/// The bytes of files by their names below the test's folder.
using Contents = std::map<std::string, std::string>;

/// One command that writes files, in a folder with the empty folders "page" and "other".
struct WritingWay
{
    const char* Name;
    /// Makes the files that are there before.
    std::function<void(const TestFolder&)> Prepare;
    /// Runs the command on this store.
    std::function<Report(FileStore&, const TestFolder&)> Run;
    /// The files that a run without trouble makes or changes.
    std::function<Contents(const TestFolder&)> Written;
    bool IsRepeatable = false; ///< a second run leaves the files as the first one did
    bool IsPrivate = false;    ///< not everybody may read the page, nor what is left beside it
    /// The beginning of the backup's name; no page may be written before the backup.
    const char* Backup = "page/Backup of index.html";
};

/// Prints the way's name in the names of tests.
void PrintTo(const WritingWay& way, std::ostream* out);

/// Runs a way again and again, each time on fresh files with another trouble at another call of the
/// system. Expects that every file is as before the run or as after a run without trouble, that no
/// page is written without its backup, and that the author is told exactly what went wrong.
class FaultTrials
{
public:
    /// Makes a run without trouble, to compare with. The way must outlive the object.
    explicit FaultTrials(const WritingWay& way);

    /// Tries every trouble at every call, until the test fails; gives the number of trials.
    int PlayAll() const;

private:
    /// The mode of a file, folder or link, and a file's bytes or a link's target.
    struct Entry
    {
        mode_t Mode = 0;
        std::string Content;
        bool operator==(const Entry&) const = default;
    };
    struct Tree
    {
        std::map<std::string, Entry> Names;
        std::set<std::string> Litter; ///< names of the file store's temporary files
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
