#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/orvane_core.h"
#include "core/text.h"

#include <cstddef>
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

/// The five texts of each row, and the rows of such texts; an incomplete row at their end is left
/// out.
FieldTexts TextsOf(const std::vector<ImageRow>& rows);
void SetField(std::vector<ImageRow>& rows, const FieldTexts& texts);

/// One of the list boxes beside each other in the window. It shows the same property of every row.
struct ImageListColumn
{
    ControlName Name;
    TextView Header;
    Text ImageRow::*Field; ///< the property that it shows
};

/// How the image list of one wizard differs from that of another.
struct ImageListVariation
{
    std::vector<ImageListColumn> Columns = {
        {"List1", u"Animation Image List", &ImageRow::FileName}};
    ControlName AddButton = "cmdAddToImageList";
    TextView AddCaption = u"&Add to Image List -->";
    TextView AddTip = {};
    TextView FilesTip = {};
    TextView RowTip = {};
    TextView ListInMessages = u"Animation"; ///< which image list the messages speak of
    TextView PreviewFrame = {};             ///< caption of the picture's frame; empty for none
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

/// The images in their order, and the selected row.
struct ImageList
{
    std::vector<ImageRow> Rows;
    std::optional<std::size_t> Selected;
    bool operator==(const ImageList&) const = default;
};

/// The index at which an added image goes: in front of the selected row, or to the end when no row
/// or the last one is selected.
std::size_t PlaceToAdd(const ImageList& list);

/// Inserts a file of `folder` at index `place` and records it for copying. An image at the end is
/// then selected; in front of others it leaves the one selected that was. A name with a blank
/// inside is a complaint and changes nothing.
std::optional<Complaint> AddImageToList(ImageList& list, OrvaneCore& core, std::size_t place,
                                        TextView folder, TextView fileName);

/// Removes the selected row, if there is one, and selects the row behind it; none when the last row
/// was removed. The file of the image stays recorded for copying.
void DeleteRow(ImageList& list);

/// Moves the selected image one row up; a complaint when no row or the first one is selected.
std::optional<Complaint> MoveUp(ImageList& list, TextView listInMessages);

/// Moves the selected image one row down; a complaint when no row or the last one is selected.
std::optional<Complaint> MoveDown(ImageList& list, TextView listInMessages);

/// The text of a width or height field after a picture of that many pixels was added: the larger of
/// both. A text that starts with no number counts as 0.
Text GrownField(TextView field, int pixels);

} // namespace orvane
