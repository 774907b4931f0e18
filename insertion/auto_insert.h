#pragma once

#include "core/complaint.h"
#include "core/dialogs.h"
#include "core/file_names.h"
#include "core/file_store.h"
#include "core/payload.h"

#include <optional>
#include <string_view>
#include <utility>

namespace orvane {

/// How an automatic insertion ended.
enum class AutoInsertion
{
    NothingDone, ///< the author was told why and can try again
    Inserted,    ///< the page is written; its files are still to be copied beside it
    Manual,      ///< the author is to insert the code by hand
};

/// Where pages are kept as they were before a day's first insertion, and before an earlier version
/// was brought back.
struct KeptPages
{
    Text Folder; ///< full path in the user's state folder; created when it is missing
    Text Day;    ///< such as "2024-05-31"
};

/// The place of the kept pages in a user's state folder, for that day.
inline KeptPages KeptPagesIn(TextView stateFolder, Text day)
{
    return {PathIn(stateFolder, u"first-backups"), std::move(day)};
}

/// The complaint about an empty file name, or nothing when the insertion may start.
std::optional<Complaint> CheckPageName(TextView txtFileName);

/// The full path of the page that the author named: a name that does not start at the root is in
/// `currentFolder`. Expects a name that passes CheckPageName().
Text PagePath(TextView txtFileName, TextView currentFolder);

/// The full path of the backup in the page's own folder.
Text BackupPath(TextView page);

/// Writes the backup and checks it: it must be a file other than the page, with these bytes;
/// PathFileAccess when it is not. Nobody gets more rights to it than to the page.
[[nodiscard]] Done BackUp(FileStore& files, TextView backup, TextView page, std::string_view bytes);

/// Puts these bytes among the kept pages, in a folder of their own so that no earlier backup is
/// overwritten, and checks them as BackUp() does.
[[nodiscard]] Done KeepPage(FileStore& files, const KeptPages& kept, TextView page,
                            std::string_view bytes);

/// The full path of a day's first backup of that page: the page's own path, below the folder and
/// the day. Expects a full path.
Text KeptPagePath(const KeptPages& kept, TextView page);

/// Inserts the effect into the author's page: writes the backup, edits the page and writes it. When
/// that does not work, or the page has no place for the page script, the author is told so.
/// Whatever fails, the page holds its old bytes or the new ones, and the backup the old ones. A
/// page that another program changes meanwhile stays as that program left it.
/// The day's first backup of the page is also put among the kept pages, where it is never
/// overwritten; when that fails, the work goes on without a message. Expects a full path.
AutoInsertion AutoInsert(FileStore& files, Dialogs& dialogs, TextView page,
                         const FinishedPayload& payload, const KeptPages& kept);

} // namespace orvane
