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
    bool ToBoxes;         ///< `driveCopyTo`, `dirCopyTo`, `fileCopyTo` and the buttons below them
    bool FromBoxes;       ///< `driveCopyFrom`, `dirCopyFrom`, `fileCopyFrom`
    bool lstMissingFiles; ///< with its label, `missingFilesLabel`
    bool cmdCopyFiles;    ///< "&Publish >>"
    bool Label4;          ///< `publishHint`, about the page ovtemp.html
    bool cmdManualCopy;
    bool cmdDoneCopying;
    bool picCopyThenPreview; ///< with `cmdManualCopyForPreview` and `cmdPreviewAfterCopying`
    bool cmdPrevious;
    bool cmdNext;
    bool operator==(const PublishControls&) const = default;
};

/// The controls that are shown in a mode; page 8 of the wizard begins with those of Publish.
PublishControls ControlsOf(PublishMode mode);

/// The words beside the list of missing files.
inline constexpr TextView missingFilesLabel = u"Missing Files -->";

/// The words of `Label4`.
inline constexpr TextView publishHint =
    u"(A file named ovtemp.html will be copied to this folder as a backup.  It contains the HTML "
    u"code for this special effect.)";

/// The panel's heading and sub-heading in mode MissingForPreview.
inline constexpr TextView missingForPreviewHeading = u"Missing Required Files for Preview";
inline constexpr TextView missingForPreviewSubHeading =
    u"The following required files could not be found.  Using the file list below, find the "
    u"necessary files and click the 'Copy>>' button to copy them to the correct location.";

/// What the delivery wizard shows when the author has left one of the modes for missing files; the
/// panel's controls are those of Publish again.
struct AfterCopying
{
    int Panel;       ///< the index of the panel that is shown
    int HeadingPage; ///< the number of the page whose heading and sub-heading are shown
    bool IsNextEnabled;
    bool IsPreviousEnabled;
    TextView CancelCaption;
    bool IsPreviewed; ///< whether the preview is shown anew
    bool operator==(const AfterCopying&) const = default;
};

/// What a click on `cmdDoneCopying` leads to: the heading of the last page, above the panel of the
/// HEAD code or, for an effect without any, above what that page tells.
AfterCopying DoneCopying(bool hasHead);

/// What a click on `cmdPreviewAfterCopying` leads to: the first page and its preview.
AfterCopying PreviewAfterCopying();

} // namespace orvane
