#pragma once

#include "core/text.h"

namespace orvane {

/// What the publishing panel is used for at the moment.
enum class PublishMode
{
    Publish,           ///< the author chooses a folder and publishes
    MissingInFolder,   ///< files that could not be published are looked for by hand
    MissingForPreview, ///< files that the preview lacks are looked for by hand
};

/// Which controls of the publishing panel, and which of the wizard's own buttons, are shown.
struct PublishControls
{
    bool ToBoxes;         ///< `driveCopyTo`, `dirCopyTo`, `cmdNewFolder`
    bool FromBoxes;       ///< `driveCopyFrom`, `dirCopyFrom`, `fileCopyFrom`
    bool lstMissingFiles; ///< with its label, `missingFilesLabel`
    bool cmdCopyFiles;    ///< "&Publish >>"
    bool Label4;          ///< the hint about the backup page, `publishHint`
    bool cmdManualCopy;
    bool cmdDoneCopying;
    bool picCopyThenPreview; ///< with `cmdManualCopyForPreview` and `cmdPreviewAfterCopying`
    bool cmdPrevious;
    bool cmdNext;
    bool operator==(const PublishControls&) const = default;
};

/// The controls of a mode; those of Publish are also what page 8 begins with.
PublishControls ControlsOf(PublishMode mode);

inline constexpr TextView missingFilesLabel = u"Missing Files -->";
inline constexpr TextView publishHint =
    u"(A file named ovtemp.html will be copied to this folder as a backup.  It contains the HTML "
    u"code for this special effect.)";

/// The panel's heading and sub-heading in mode MissingForPreview.
inline constexpr TextView missingForPreviewHeading = u"Missing Required Files for Preview";
inline constexpr TextView missingForPreviewSubHeading =
    u"The following required files could not be found.  Using the file list below, find the "
    u"necessary files and click the 'Copy>>' button to copy them to the correct location.";

/// How the delivery wizard stands when the author has left one of the missing-files modes; the
/// controls are those of Publish again.
struct AfterCopying
{
    int Panel;       ///< the index of the panel that comes forward
    int HeadingPage; ///< the number of the page whose heading and sub-heading are shown
    bool IsNextEnabled;
    bool IsPreviousEnabled;
    TextView CancelCaption;
    bool IsPreviewed; ///< the preview page is shown now
    bool operator==(const AfterCopying&) const = default;
};

/// The command `cmdDoneCopying`: the author's work is complete.
AfterCopying DoneCopying();

/// The command `cmdPreviewAfterCopying`: back to the first page and its preview.
AfterCopying PreviewAfterCopying();

} // namespace orvane
