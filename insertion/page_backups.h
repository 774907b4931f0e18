#pragma once

#include "core/dialogs.h"
#include "core/file_names.h"
#include "core/file_store.h"

#include <cstdint>
#include <vector>

namespace orvane {

/// Where pages are kept as they were before a day's first insertion, and before an earlier version
/// was brought back.
struct BackupsPlace
{
    Text Folder; ///< full path in the user's state folder; created when it is missing
    Text Day;    ///< such as "2024-05-31"
};

/// The place of the backups in a user's state folder, for that day.
inline BackupsPlace BackupsPlaceIn(TextView stateFolder, Text day)
{
    return {PathIn(stateFolder, u"first-backups"), std::move(day)};
}

/// The full path of the backup in the page's own folder.
Text BackupPath(TextView page);

/// Writes the backup and checks it: it must be a file other than the page, with these bytes;
/// PathFileAccess when it is not. Nobody gets more rights to it than to the page.
[[nodiscard]] Done BackUp(FileStore& files, TextView backup, TextView page, std::string_view bytes);

/// Puts the day's first backup of a page in the place of the backups, for its owner alone. Whatever
/// already lies at its place, even unreadable, is an earlier backup and stays; nobody is told of a
/// failure.
void KeepFirstBackup(FileStore& files, const BackupsPlace& place, TextView page,
                     std::string_view bytes);

/// Puts these bytes in the place of the backups, for their owner alone and in a folder of their
/// own, so that no earlier backup is overwritten, and checks them as BackUp() does.
[[nodiscard]] Done KeepBackup(FileStore& files, const BackupsPlace& place, TextView page,
                              std::string_view bytes);

/// The full path of a day's first backup of that page: the page's own path, below the folder and
/// the day. Expects a full path.
Text BackupPathIn(const BackupsPlace& place, TextView page);

/// An earlier version of a page.
struct PageBackup
{
    Text Path;
    FileFacts Facts;
    bool operator==(const PageBackup&) const = default;
};

/// The backups of a page, newest first: the one in its folder and those in the place of the
/// backups. A link is not taken for a backup. Expects a full path.
std::vector<PageBackup> BackupsOf(const FileStore& files, const BackupsPlace& place, TextView page);

/// The page that is gone and of which this file is a backup; the file itself where there is no such
/// page. Expects a full path.
Text PageOfBackup(const FileStore& files, const BackupsPlace& place, TextView path);

/// How the size of a backup compares with that of the page, both in bytes: "12 bytes less", "1 byte
/// more" or "same size".
Text CompareSizes(std::uint64_t backup, std::uint64_t page);

/// Gives the page the bytes of a backup and gives true; otherwise tells the author why not and
/// gives false. The page as it is before is put in the place of the backups first, and every backup
/// stays. A page that is gone comes back with its folder. A link in the place of the backup is not
/// followed. Whatever fails, the page holds its old bytes or the backup's; a page that another
/// program changes meanwhile stays as that program left it.
bool BringBack(FileStore& files, Dialogs& dialogs, TextView page, TextView backup,
               const BackupsPlace& place);

} // namespace orvane
