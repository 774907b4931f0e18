#pragma once

#include "core/file_store.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orvane {

/// A row of a folder box.
struct FolderRow
{
    Text Name;
    Text Path;
    std::size_t Depth = 0; ///< 0 for the root
    bool operator==(const FolderRow&) const = default;
};

/// What a folder box shows: the folders from the root down to the current one, then its
/// sub-folders.
struct FolderRows
{
    std::vector<FolderRow> Rows;
    std::size_t Current = 0; ///< the row of the folder itself
    bool operator==(const FolderRows&) const = default;
};

/// The rows for a folder; nothing when the text is not the full path of a folder that can be read.
/// Hidden sub-folders are left out.
std::optional<FolderRows> ListFolders(const FileStore& files, TextView folder);

/// The names of a file box: the files of a folder that fit the masks and are not hidden, sorted
/// ignoring case; empty when the folder cannot be read.
std::vector<Text> ListFiles(const FileStore& files, TextView folder, TextView masks);

/// The index of the drive in which `folder` lies; of several, the one with the longest path.
/// Nothing when it lies in none.
std::optional<std::size_t> DriveOf(const std::vector<Text>& drives, TextView folder);

} // namespace orvane
