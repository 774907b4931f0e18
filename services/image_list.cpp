#include "services/image_list.h"

#include "core/file_names.h"
#include "core/numbers.h"
#include "services/recorded_files.h"

namespace orvane {

ImageListVariation AnimatorImageList()
{
    return {
        .Columns = {{"List1", u"Animation Image List"},
                    {"List3", u"Pause"},
                    {"List4", u"Transistion"},
                    {"List5", u"URL"},
                    {"List6", u"Sound"}},
        .Words = {.CannotMoveUp = u"Select an item in the Animation image list.  You cannot move "
                                  u"the first image upward.",
                  .CannotMoveDown = u"Select an item in the Animation image list.  You cannot move "
                                    u"the last image downward."},
        .AddTip = u"Click here to add the selected image to the list",
        .FilesTip = u"Doubleclick to add an image to the Animation Image List",
        .RowTip = u"Double-click to set image properties",
        .EnablesButtonsOnAdd = true,
    };
}

ImageListVariation SlideshowImageList()
{
    return {
        .Columns = {{"List1", u"Slideshow Image List"}},
        .Words = {.CannotMoveUp = u"Select an item in the Slideshow image list.  You cannot move "
                                  u"the first image upward.",
                  .CannotMoveDown = u"Select an item in the Slideshow image list.  You cannot move "
                                    u"the last image downward."},
        .AddButton = "cmdAddImageToList",
        .AddCaption = u"&Add Image to List  --->",
        .PreviewFrame = u"Preview Image",
    };
}

std::optional<Complaint> RecordImage(RequiredFiles& files, TextView folder, TextView fileName)
{
    if (auto complaint = CheckNoBlank(Trim(fileName), FileRole::Image))
        return complaint;
    RecordRequiredFile(files, PathIn(folder, fileName), fileName);
    return std::nullopt;
}

Text GrownField(TextView field, int pixels)
{
    return Val(field) < pixels ? NumberToText(pixels) : Text(field);
}

} // namespace orvane
