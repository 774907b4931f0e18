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

/// One effect, and what the copying of its files works with.
struct CopyDesk
{
    const FinishedPayload& Payload;
    TextView ProgramFolder;
    FileStore& Files;
    orvane::Dialogs& Dialogs;
    DeliveryReport* Report = nullptr; ///< where it is written down what was copied; may be null
    FollowedCopies* Copies = nullptr; ///< set while files are copied

    /// Asks the author before a file of that name is written over.
    bool MayOverwrite(TextView name) const;

    /// Tells the report that a file is in the folder now.
    void WriteDownCopied(TextView folder, TextView name) const;
};

/// Copies the author's files, the class files and a wanted page script to the page's folder, asks
/// before it overwrites one of the author's, and says at the end whether all is there; the window
/// then goes into missing-files mode if a name is missing. Expects the folder with its final
/// separator, or the empty text for the current folder. Stops without that word on a fault that is
/// no matter of one file, which the caller shows. Gives Cancelled, and has told the author which
/// files are not there, when the author ended the copying; no file is copied by half.
[[nodiscard]] Outcome<MissingFiles> CopyRequiredFiles(const CopyDesk& desk, TextView folder);

/// Copies the author's files to the program's folder, where the preview page lies, and says so when
/// it could not; a name that already lies there is not copied again. An author who ends the copying
/// gets the preview without the rest.
[[nodiscard]] MissingFiles CopyRequiredFilesForPreview(const CopyDesk& desk);

/// The command `cmdCopyFiles`: writes the effect's backup page ovtemp.html to the folder, where the
/// author allows it, and copies the required files there. Ends at a fault of the page as
/// CopyRequiredFiles() does.
[[nodiscard]] Outcome<MissingFiles> Publish(const CopyDesk& desk, TextView folder);

} // namespace orvane
