#include "services/folder_list.h"

#include "core/file_names.h"

namespace orvane {

namespace {

bool IsHidden(const Text& name)
{
    return name.starts_with(u'.');
}

/// Whether `folder` is `drive` or lies somewhere in it.
bool IsWithin(TextView folder, TextView drive)
{
    return WithSeparator(folder).starts_with(WithSeparator(drive));
}

/// One row for the root and each folder on the way down; empty for a path that does not start at
/// the root.
std::vector<FolderRow> WayDown(TextView folder)
{
    const Text root(1, pathSeparator);
    if (!folder.starts_with(pathSeparator))
        return {};
    std::vector<FolderRow> way = {{root, root, 0}};
    while (!folder.empty()) {
        const TextView name = TakeUntil(folder, pathSeparator);
        if (!name.empty() && name != u".")
            way.push_back({Text(name), PathIn(way.back().Path, name), way.size()});
    }
    return way;
}

} // namespace

std::optional<FolderRows> ListFolders(const FileStore& files, TextView folder)
{
    FolderRows list{.Rows = WayDown(folder)};
    if (list.Rows.empty() || !files.FolderExists(list.Rows.back().Path))
        return std::nullopt;
    const auto names = files.SubFolders(list.Rows.back().Path);
    if (FaultIn(names) != nullptr)
        return std::nullopt;
    list.Current = list.Rows.size() - 1;
    const Text current = list.Rows.back().Path;
    for (const Text& name : ValueIn(names))
        if (!IsHidden(name))
            list.Rows.push_back({name, PathIn(current, name), list.Current + 1});
    return list;
}

std::vector<Text> ListFiles(const FileStore& files, TextView folder, TextView masks)
{
    std::vector<Text> names = files.Files(folder);
    std::erase_if(
        names, [masks](const Text& name) { return IsHidden(name) || !MatchesMasks(name, masks); });
    return names;
}

std::optional<std::size_t> DriveOf(const std::vector<Text>& drives, TextView folder)
{
    std::optional<std::size_t> longest;
    for (std::size_t i = 0; i < drives.size(); ++i)
        if (IsWithin(folder, drives[i]) && (!longest || drives[i].size() > drives[*longest].size()))
            longest = i;
    return longest;
}

} // namespace orvane
