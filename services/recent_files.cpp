#include "services/recent_files.h"

#include "core/setting_keys.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr char16_t between = u'\n';
constexpr std::size_t limit = 10;

} // namespace

std::vector<Text> RecentFilesAndGone(const Settings& settings, TextView kind)
{
    const Text list = settings.Get(InSection(settingSections::recentFiles, kind));
    std::vector<Text> paths;
    for (TextView rest = list; !rest.empty();)
        paths.emplace_back(TakeUntil(rest, between));
    return paths;
}

std::vector<Text> RecentFiles(const Settings& settings, const FileStore& files, TextView kind)
{
    std::vector<Text> paths = RecentFilesAndGone(settings, kind);
    std::erase_if(paths, [&](const Text& path) { return !files.FileExists(path); });
    return paths;
}

void PutRecentFile(Settings& settings, TextView kind, TextView path)
{
    // The list has no sign for such a path.
    if (path.find(between) != TextView::npos)
        return;
    std::vector<Text> paths = RecentFilesAndGone(settings, kind);
    std::erase(paths, path);
    paths.emplace(paths.begin(), path);
    paths.resize(std::min(paths.size(), limit));
    settings.Put(InSection(settingSections::recentFiles, kind), Listed(paths, Text(1, between)));
}

} // namespace orvane
