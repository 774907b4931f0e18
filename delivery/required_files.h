#pragma once

#include "core/dialogs.h"
#include "core/fault.h"
#include "core/file_store.h"
#include "core/payload.h"
#include "delivery/delivery_report.h"
#include "delivery/followed_copies.h"

#include <vector>

namespace orvane {

/// The names of required files that could not be brought to their folder, in the order of the
/// copying; empty when everything is there.
using MissingFiles = std::vector<Text>;

/// One effect, and the services that copying its files needs.
struct CopyJob
{
    const FinishedPayload& Payload;
    TextView ProgramFolder;
    FileStore& Files;
    orvane::Dialogs& Dialogs;
    DeliveryReport& Report;           ///< where it is noted what was written
    FollowedCopies* Copies = nullptr; ///< null but while files are copied
    bool HasFileList = true;          ///< beside it, the author finds missing files in a list

    /// The full path of the file that the effect needs under that name, as far as the payload
    /// tells; empty otherwise.
    Text SourceOf(TextView name) const;

    /// Asks the author whether the file of that name may be overwritten; true for Yes.
    bool MayOverwrite(TextView name) const;
};

/// Copies the author's files, the class files and a wanted page script to the page's folder. Asks
/// before it overwrites one of the author's files, or a file with the page script's name that is
/// not an earlier version of it.
/// Tells the author at the end whether everything was copied, and gives the names that are missing.
/// Expects the folder with its final separator, or the empty text for the current folder. A fault
/// that concerns more than one file, such as a full disk, ends the copying; it is given back
/// without a word to the author, for the caller to show. When the author cancels and files are
/// missing, a message lists them and Cancelled is given. No file is ever copied in part.
[[nodiscard]] Outcome<MissingFiles> CopyRequiredFiles(const CopyJob& job, TextView folder);

/// Copies a wanted page script to the folder, as CopyRequiredFiles() does. The author is told of a
/// fault; false when the script could not be copied.
bool CopyPageScriptTo(CopyJob job, TextView folder);

/// Copies one file to a page's folder, under a name relative to that; folders in the name are made.
/// Asks before it overwrites a file, and tells the author of a fault.
void CopyHere(const CopyJob& job, TextView source, TextView folder, TextView name);

/// Copies the author's files to the program's folder, in which the preview page is; a name that is
/// there already is not copied again. Gives the names that could not be copied, and tells the
/// author if there are any. When the author cancels, the files not copied yet do not count as
/// missing.
[[nodiscard]] MissingFiles CopyRequiredFilesForPreview(const CopyJob& job);

/// What `cmdCopyFiles` does: writes the page ovtemp.html with the effect to the folder, asking
/// before it overwrites one, and copies the required files there by CopyRequiredFiles(), whose
/// result it gives. A fault in writing the page is given back before any file is copied.
[[nodiscard]] Outcome<MissingFiles> Publish(const CopyJob& job, TextView folder);

} // namespace orvane
