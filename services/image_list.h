#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/orvane_core.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orvane {

/// One image of the list with what may be set for it; an empty text means that nothing is set.
struct ImageRow
{
    Text FileName; ///< as listed in its folder, without the folder
    Text Pause;    ///< milliseconds, or -1 and -2 as signals
    Text Transition;
    Text URL;
    Text Sound;
    bool operator==(const ImageRow&) const = default;
};

/// Five texts for each row.
FieldTexts TextsOf(const std::vector<ImageRow>& rows);
void SetField(std::vector<ImageRow>& rows, const FieldTexts& texts);

/// One list of the window: a text of every row, so that the lists are always in step.
struct ImageListColumn
{
    ControlName Name;
    TextView Header;
    Text ImageRow::*Field;
};

/// How the list of one wizard differs from that of another.
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
    bool EnablesButtonsOnAdd = false;       ///< the list buttons start disabled
};

/// The Advanced Animator's variation: four lists beside that of the file names.
ImageListVariation AnimatorImageList();

/// The slideshow's variation: a visible preview, and no size fields.
ImageListVariation SlideshowImageList();

/// What the file box of every image list shows.
inline constexpr TextView imageMasks = u"*.jpg;*.gif";

/// What the author is told when the add button finds no file selected.
inline constexpr TextView noImageSelected = u"Please select an image.";

/// The images in their order, and the row that is selected in every list.
struct ImageList
{
    std::vector<ImageRow> Rows;
    std::optional<std::size_t> Selected;
    bool operator==(const ImageList&) const = default;
};

/// Where added images go: in front of the selected row, or to the end when no row or the last one
/// is selected.
std::size_t PlaceToAdd(const ImageList& list);

/// Puts a file of `folder` at that place and records it for copying. A name with a blank inside is
/// a complaint and changes nothing. The selection stays on its image.
std::optional<Complaint> AddImageToList(ImageList& list, OrvaneCore& core, std::size_t place,
                                        TextView folder, TextView fileName);

/// Removes the selected row; the next one is selected, or none behind the last. Its file stays
/// recorded.
void DeleteRow(ImageList& list);

/// Moves the selected image one row up; a complaint when there is none to move.
std::optional<Complaint> MoveUp(ImageList& list, TextView listInMessages);

/// Moves the selected image one row down; a complaint when there is none to move.
std::optional<Complaint> MoveDown(ImageList& list, TextView listInMessages);

/// The text of a width or height field after a picture of that many pixels came: the larger of
/// both. A text without a leading number counts 0.
Text GrownField(TextView field, int pixels);

} // namespace orvane
