#include "services/image_list.h"

#include "core/file_names.h"
#include "core/numbers.h"

#include <limits>
#include <utility>

namespace orvane {

namespace {

Complaint CannotMove(TextView listInMessages, TextView end)
{
    return {.Words = Join({u"Select an item in the ", listInMessages, u" image list.  ", end}),
            .Control = {}};
}

} // namespace

ImageListVariation AnimatorImageList()
{
    return {
        .Columns = {{"List1", u"Animation Image List", &ImageRow::FileName},
                    {"List3", u"Pause", &ImageRow::Pause},
                    {"List4", u"Transistion", &ImageRow::Transition},
                    {"List5", u"URL", &ImageRow::URL},
                    {"List6", u"Sound", &ImageRow::Sound}},
        .AddTip = u"Click here to add the selected image to the list",
        .FilesTip = u"Doubleclick to add an image to the Animation Image List",
        .RowTip = u"Double-click to set image properties",
        .EnablesButtonsOnAdd = true,
    };
}

ImageListVariation SlideshowImageList()
{
    return {
        .Columns = {{"List1", u"Slideshow Image List", &ImageRow::FileName}},
        .AddButton = "cmdAddImageToList",
        .AddCaption = u"&Add Image to List  --->",
        .ListInMessages = u"Slideshow",
        .PreviewFrame = u"Preview Image",
    };
}

std::optional<Complaint> AddImageToList(ImageList& list, OrvaneCore& core, TextView folder,
                                        TextView fileName)
{
    if (Trim(fileName).find(u' ') != TextView::npos)
        return Complaint{.Words =
                             u"This special effect does not allow image filenames containing space "
                             u"characters.\r\nPlease rename the image or select another image.",
                         .Control = {}};
    const bool goesInFront = list.Selected && *list.Selected + 1 < list.Rows.size();
    const std::size_t place = goesInFront ? *list.Selected : list.Rows.size();
    list.Rows.insert(list.Rows.begin() + static_cast<std::ptrdiff_t>(place),
                     ImageRow{.FileName = Text(fileName)});
    if (goesInFront)
        ++*list.Selected;
    RecordRequiredFile(core, PathIn(folder, fileName), fileName);
    return std::nullopt;
}

void DeleteRow(ImageList& list)
{
    if (!list.Selected)
        return;
    list.Rows.erase(list.Rows.begin() + static_cast<std::ptrdiff_t>(*list.Selected));
    if (*list.Selected >= list.Rows.size())
        list.Selected.reset();
}

std::optional<Complaint> MoveUp(ImageList& list, TextView listInMessages)
{
    if (!list.Selected || *list.Selected == 0)
        return CannotMove(listInMessages, u"You cannot move the first image upward.");
    std::swap(list.Rows[*list.Selected], list.Rows[*list.Selected - 1]);
    --*list.Selected;
    return std::nullopt;
}

std::optional<Complaint> MoveDown(ImageList& list, TextView listInMessages)
{
    if (!list.Selected || *list.Selected + 1 >= list.Rows.size())
        return CannotMove(listInMessages, u"You cannot move the last image downward.");
    std::swap(list.Rows[*list.Selected], list.Rows[*list.Selected + 1]);
    ++*list.Selected;
    return std::nullopt;
}

Text GrownField(TextView field, int pixels)
{
    return Val(field) < pixels ? NumberToText(pixels) : Text(field);
}

void ClearRequiredFiles(OrvaneCore& core)
{
    core.Required = {};
    core.RequiredFileCount = 0;
    core.Payload.SupportFiles = {};
}

void RecordRequiredFile(OrvaneCore& core, TextView source, TextView name)
{
    const auto slot = static_cast<std::size_t>(core.RequiredFileCount);
    if (slot < core.Required.Names.size()) {
        core.Required.Sources[slot] = source;
        core.Required.Names[slot] = name;
    }
    if (core.RequiredFileCount < std::numeric_limits<std::int16_t>::max())
        ++core.RequiredFileCount;
}

} // namespace orvane
