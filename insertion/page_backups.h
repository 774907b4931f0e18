#pragma once

#include "insertion/auto_insert.h"

#include <vector>

namespace orvane {

/// An earlier version of a page.
struct PageBackup
{
    Text Path;
    FileFacts Facts;
    bool operator==(const PageBackup&) const = default;
};

/// The backups of a page, newest first: the one beside it and the kept ones. What is a link to
/// another file is no backup. Expects a full path.
std::vector<PageBackup> BackupsOf(const FileStore& files, const KeptPages& kept, TextView page);

/// How a backup's size compares with the page's, in words such as "12 bytes less".
Text CompareSizes(std::uint64_t backup, std::uint64_t page);

/// Makes the page hold a backup's bytes again and gives true; otherwise the author was told why
/// not. The page as it stands is kept first, and every backup stays. The page holds its old bytes
/// or the backup's; one that another program saves meanwhile stays as that program left it.
bool BringBack(FileStore& files, Dialogs& dialogs, TextView page, TextView backup,
               const KeptPages& kept);

} // namespace orvane
