#pragma once

#include "insertion/auto_insert.h"

#include <cstdint>
#include <vector>

namespace orvane {

/// An earlier version of a page.
struct PageBackup
{
    Text Path;
    FileFacts Facts;
    bool operator==(const PageBackup&) const = default;
};

/// The backups of a page, newest first: the one in its folder and those among the kept pages. A
/// link is not taken for a backup. Expects a full path.
std::vector<PageBackup> BackupsOf(const FileStore& files, const KeptPages& kept, TextView page);

/// How the size of a backup compares with that of the page, both in bytes: "12 bytes less", "1 byte
/// more" or "same size".
Text CompareSizes(std::uint64_t backup, std::uint64_t page);

/// Gives the page the bytes of a backup and gives true; otherwise tells the author why not and
/// gives false. The page as it is before is put among the kept pages first, and every backup stays.
/// Whatever fails, the page holds its old bytes or the backup's; a page that another program
/// changes meanwhile stays as that program left it.
bool BringBack(FileStore& files, Dialogs& dialogs, TextView page, TextView backup,
               const KeptPages& kept);

} // namespace orvane
