#pragma once

#include "disk/unwritten_files.h"
#include "program/cli_dialogs.h"
#include "program/cli_request.h"
#include "program/cli_world.h"

#include <array>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace orvane {

/// How the work on one page ended.
struct PageEnd
{
    enum class As
    {
        Written, ///< or looked at, by a command that writes nothing
        Kept,    ///< there was nothing to do, or an option said so
        Failed,  ///< Words say why
    };
    As Is = As::Written;
    Text Words{}; ///< behind the page's path; none: nothing is told
};

/// The options by which pages are named.
inline constexpr std::array<CliOption, 2> pageOptions = {{{"--folder", true}, {"--pattern", true}}};

/// The full path of a file that was named on the command line.
Text FullPathOf(const CliWorld& world, TextView name);

/// The answer that --replace or --keep gives to every question; nothing without
/// them.
std::optional<bool> AnswerOf(const CliRequest& request);

/// A run over the pages that a command names, one by one: a page that fails
/// keeps no other from being worked on, and is told at the end.
class PageRun
{
public:
    /// `request` has --folder, --pattern and --dry-run where the command takes
    /// them. Both must outlive the object.
    PageRun(CliWorld& world, const CliRequest& request) : m_world(world), m_request(request) {}

    /// Works on one page of that full path, through this store and these dialogs.
    using Work = std::function<PageEnd(const Text& page, FileStore& files, CliDialogs& dialogs)>;

    /// Works on the named pages, of which the first `skipped` names are none, and
    /// on those of the folders. Gives Failed when a page failed or there was
    /// none.
    CliExit Over(std::size_t skipped, const Work& work);

    /// Works on this page alone.
    CliExit On(const Text& page, const Work& work);

    /// How many pages the work was done on.
    int Written() const { return m_written; }

private:
    void OverFolder(const Text& folder, const Text& masks, const Work& work);
    void One(const Text& page, const Work& work);
    void Fail(const Text& path, TextView words);
    void TellProgress(TextView page);
    void TellUnwritten(const Text& page, const UnwrittenFiles& files);
    CliExit End();

    CliWorld& m_world;
    const CliRequest& m_request;
    std::vector<std::pair<Text, Text>> m_failures; ///< paths with their reasons
    int m_pages = 0;
    int m_written = 0;
    bool m_isProgressShown = false;
};

} // namespace orvane
