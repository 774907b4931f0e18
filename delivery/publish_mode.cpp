#include "delivery/publish_mode.h"

namespace orvane {

PublishControls ControlsOf(PublishMode mode)
{
    const bool isPublishing = mode == PublishMode::Publish;
    const bool isForPreview = mode == PublishMode::MissingForPreview;
    const bool isForFolder = mode == PublishMode::MissingInFolder;
    return {
        .ToBoxes = !isForPreview,
        .FromBoxes = !isPublishing,
        .lstMissingFiles = !isPublishing,
        .cmdCopyFiles = isPublishing,
        .Label4 = isPublishing,
        .cmdManualCopy = isForFolder,
        .cmdDoneCopying = isForFolder,
        .picCopyThenPreview = isForPreview,
        .cmdPrevious = isPublishing,
        .cmdNext = isPublishing,
    };
}

AfterCopying DoneCopying(bool hasHead)
{
    // Stays as it is: the panel of the HEAD code comes forward, under the heading of the last page.
    return {.Panel = hasHead ? 4 : 9,
            .HeadingPage = 9,
            .IsNextEnabled = false,
            .IsPreviousEnabled = true,
            .CancelCaption = u"&Done",
            .IsPreviewed = false};
}

AfterCopying PreviewAfterCopying()
{
    return {.Panel = 0,
            .HeadingPage = 1,
            .IsNextEnabled = true,
            .IsPreviousEnabled = true,
            .CancelCaption = u"&Cancel",
            .IsPreviewed = true};
}

} // namespace orvane
