#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/text.h"
#include "services/row_list.h"

#include <optional>
#include <vector>

namespace orvane {

/// One image of the list and its properties; an empty text means that nothing is set.
struct ImageRow
{
    Text FileName; ///< as listed in its folder, without the folder
    Text Pause;    ///< milliseconds; -1 waits for a click, -2 for the mouse
    Text Transition;
    Text URL;
    Text Sound;
    bool operator==(const ImageRow&) const = default;
};

/// Calls `field` with the name of each list box and the field that it shows, from left to right.
template <ConstOr<ImageRow> Row, class Field>
void ForEachField(Row& row, Field&& field)
{
    field("List1", row.FileName);
    field("List3", row.Pause);
    field("List4", row.Transition);
    field("List5", row.URL);
    field("List6", row.Sound);
}

/// How the image list of one wizard differs from that of another.
struct ImageListVariation
{
    std::vector<ListColumn> Columns; ///< the first fields of an ImageRow
    RowListWords Words;
    ControlName AddButton = "cmdAddToImageList";
    TextView AddCaption = u"&Add to Image List -->";
    TextView AddTip = {};
    TextView FilesTip = {};
    TextView RowTip = {};
    TextView PreviewFrame = {};       ///< caption of the picture's frame; empty for none
    bool EnablesButtonsOnAdd = false; ///< the list buttons are disabled until an image is added
};

/// The Advanced Animator's image list: four list boxes beside that of the file names.
ImageListVariation AnimatorImageList();

/// The slideshow's image list: the file names alone, and a preview of the picture.
ImageListVariation SlideshowImageList();

/// The masks of the files that are shown for an image list.
inline constexpr TextView imageMasks = u"*.jpg;*.gif";

/// What the author is told when the add button finds no file selected.
inline constexpr TextView noImageSelected = u"Please select an image.";

/// Records a file of `folder` for copying, as an image that joins a list. A name with a blank
/// inside is a complaint and changes nothing. An image that leaves the list stays recorded.
std::optional<Complaint> RecordImage(RequiredFiles& files, TextView folder, TextView fileName);

/// The text of a width or height field after a picture of that many pixels was added: the larger of
/// both. A text that starts with no number counts as 0.
Text GrownField(TextView field, int pixels);

} // namespace orvane
