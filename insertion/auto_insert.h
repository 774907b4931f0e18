#pragma once

#include "core/complaint.h"
#include "core/dialogs.h"
#include "core/file_names.h"
#include "core/file_store.h"
#include "core/payload.h"

#include <optional>

namespace orvane {

/// What is left to do when the command has run.
enum class AutoInsertion
{
    NothingDone, ///< the author was told why and can try again
    Inserted,    ///< the page is written: its files are to be copied beside it
    Manual,      ///< the author was sent to the manual steps
};

/// Where pages are kept as they were before a day's first insertion, and before an earlier version
/// was brought back.
struct KeptPages
{
    Text Folder; ///< full path below the user's own state; made when it is missing
    Text Day;    ///< such as "2024-05-31"
};

/// The kept pages of a user's state.
inline KeptPages KeptPagesIn(TextView stateFolder, Text day)
{
    return {PathIn(stateFolder, u"first-backups"), std::move(day)};
}

/// The complaint about an empty file name, or nothing when the insertion may start.
std::optional<Complaint> CheckPageName(TextView txtFileName);

/// The full path of the page that the author named: what does not start at the root lies in
/// `currentFolder`. Expects a name that passes CheckPageName().
Text PagePath(TextView txtFileName, TextView currentFolder);

/// Where the backup beside a page lies.
Text BackupPath(TextView page);

/// Makes the backup, and sure of it: a new file that is not the page and holds its bytes. Nobody
/// may do more with it than with the page.
[[nodiscard]] Done BackUp(FileStore& files, TextView backup, TextView page, std::string_view bytes);

/// Makes a backup among the kept pages that takes the place of none there, and sure of it.
[[nodiscard]] Done KeepPage(FileStore& files, const KeptPages& kept, TextView page,
                            std::string_view bytes);

/// Where a day's first backup of that page is kept: the page's own path, below the folder and the
/// day. Expects a full path.
Text KeptPagePath(const KeptPages& kept, TextView page);

/// Edits the author's page: backs it up, puts the effect in, writes it, and tells the author when
/// that did not work, or that the page has no place for the page script. The page holds its old
/// bytes or the new ones; the backup, its old bytes. A page that another program saves before it is
/// written stays as that program left it. The backup that is the day's first of its page is kept a
/// second time and never written over; when that fails, the work goes on and nothing is said.
/// Expects a full path.
AutoInsertion AutoInsert(FileStore& files, Dialogs& dialogs, TextView page,
                         const FinishedPayload& payload, const KeptPages& kept);

} // namespace orvane
