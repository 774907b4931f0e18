#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "insertion/page_backups.h"

#include <optional>

namespace orvane {

/// How an automatic insertion ended.
enum class AutoInsertion
{
    NothingDone, ///< the author was told why and can try again
    Inserted,    ///< the page is written; its files are still to be copied beside it
    Manual,      ///< the author is to insert the code by hand
};

/// The complaint about an empty file name, or nothing when the insertion may start.
std::optional<Complaint> CheckPageName(TextView txtFileName);

/// The full path of the page that the author named: a name that does not start at the root is in
/// `currentFolder`. Expects a name that passes CheckPageName().
Text PagePath(TextView txtFileName, TextView currentFolder);

/// Inserts the effect into the author's page: writes the backup, edits the page and writes it. When
/// that does not work, or the page has no place for the page script, the author is told so.
/// Whatever fails, the page holds its old bytes or the new ones, and the backup the old ones. A
/// page that another program changes meanwhile stays as that program left it.
/// The day's first backup of the page is also put in the place of the backups, where it is never
/// overwritten; when that fails, the work goes on without a message. Expects a full path.
AutoInsertion AutoInsert(FileStore& files, Dialogs& dialogs, TextView page,
                         const FinishedPayload& payload, const BackupsPlace& place);

/// Puts the page script's lines into a page that holds the payload's effect already, and gives true
/// when they stand there; otherwise the author is told why not. The page as it is before is put
/// in the place of the backups first. Whatever fails, the page holds its old bytes or the new ones;
/// one that another program changes meanwhile stays as that program left it. Expects a full path.
bool InsertPageScript(FileStore& files, Dialogs& dialogs, TextView page,
                      const FinishedPayload& payload, const BackupsPlace& place);

} // namespace orvane
