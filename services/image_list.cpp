#include "services/image_list.h"

#include "core/file_names.h"
#include "core/numbers.h"
#include "services/move_row.h"
#include "services/recorded_files.h"

#include <array>

namespace orvane {

namespace {

constexpr std::array rowFields = {&ImageRow::FileName, &ImageRow::Pause, &ImageRow::Transition,
                                  &ImageRow::URL, &ImageRow::Sound};

Complaint CannotMove(TextView listInMessages, TextView end)
{
    return {.Words = Join({u"Select an item in the ", listInMessages, u" image list.  ", end}),
            .Control = {}};
}

} // namespace

FieldTexts TextsOf(const std::vector<ImageRow>& rows)
{
    FieldTexts texts;
    for (const ImageRow& row : rows)
        for (const auto field : rowFields)
            texts.push_back(row.*field);
    return texts;
}

void SetField(std::vector<ImageRow>& rows, const FieldTexts& texts)
{
    rows.assign(texts.size() / rowFields.size(), {});
    for (std::size_t i = 0; i < rows.size() * rowFields.size(); ++i)
        rows[i / rowFields.size()].*rowFields[i % rowFields.size()] = texts[i];
}

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

std::size_t PlaceToAdd(const ImageList& list)
{
    const bool goesInFront = list.Selected && *list.Selected + 1 < list.Rows.size();
    return goesInFront ? *list.Selected : list.Rows.size();
}

std::optional<Complaint> AddImageToList(ImageList& list, OrvaneCore& core, std::size_t place,
                                        TextView folder, TextView fileName)
{
    if (auto complaint = CheckNoBlank(Trim(fileName), FileRole::Image))
        return complaint;
    const bool isAtEnd = place == list.Rows.size();
    list.Rows.insert(list.Rows.begin() + static_cast<std::ptrdiff_t>(place),
                     ImageRow{.FileName = Text(fileName)});
    if (isAtEnd)
        list.Selected = place;
    else if (list.Selected && *list.Selected >= place)
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
    MoveSelectedTo(list, *list.Selected - 1);
    return std::nullopt;
}

std::optional<Complaint> MoveDown(ImageList& list, TextView listInMessages)
{
    if (!list.Selected || *list.Selected + 1 >= list.Rows.size())
        return CannotMove(listInMessages, u"You cannot move the last image downward.");
    MoveSelectedTo(list, *list.Selected + 1);
    return std::nullopt;
}

Text GrownField(TextView field, int pixels)
{
    return Val(field) < pixels ? NumberToText(pixels) : Text(field);
}

} // namespace orvane
