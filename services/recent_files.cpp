#include "services/recent_files.h"

namespace orvane {

namespace {

constexpr TextView section = u"Recent";
constexpr char16_t between = u'\n';
constexpr std::size_t limit = 10;

} // namespace

std::vector<Text> RecentFilesAndGone(const Settings& settings, TextView kind)
{
    const Text list = settings.Get(section, kind, u"");
    std::vector<Text> paths;
    for (TextView rest = list; !rest.empty();) {
        const std::size_t end = rest.find(between);
        paths.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end == TextView::npos ? rest.size() : end + 1);
    }
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
    Text list(path);
    for (std::size_t i = 0; i < paths.size() && i + 1 < limit; ++i)
        list += between + paths[i];
    settings.Put(section, kind, list);
}

} // namespace orvane
