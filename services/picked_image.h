#pragma once

#include "core/file_names.h"
#include "core/numbers.h"
#include "services/recorded_files.h"

#include <optional>

namespace orvane {

/// The filters of the dialogs that ask for an image and for a Web page.
inline constexpr TextView imageFilter =
    u"All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg";
inline constexpr TextView linkedPageFilter =
    u"All Files (*.*)|*.*|HTML Files (*.htm, *.html)|*.htm;*.html";

/// The masks of the files that can be dropped on a window where an image is asked for.
inline constexpr TextView pictureMasks = u"*.gif;*.jpg;*.jpeg";

/// What the dialog is opened with in which the author picks an image.
inline FileRequest ImageRequest()
{
    return {.Title = u"Browse...",
            .Filter = Text(imageFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Images};
}

/// What the dialog is opened with in which the author picks a Web page to link to.
inline FileRequest WebPageRequest()
{
    return {.Title = u"Browse...",
            .Filter = Text(linkedPageFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Links};
}

/// The size of a picture in pixels.
struct PixelSize
{
    int Width;
    int Height;
    bool operator==(const PixelSize&) const = default;
};

/// An image file that the author picked.
struct PickedImage
{
    Text Path;
    std::optional<PixelSize> Size; ///< nothing for a file that is not a picture
};

/// Puts a picked image into the fields of an effect: its name, its size, and its path as the source
/// of file slot 0. Expects an image with a size.
template <class Effect>
void TakeImage(Effect& effect, const PickedImage& image)
{
    effect.ImageFile = GetFileName(image.Path);
    effect.ImageWidth = NumberToText(image.Size->Width);
    effect.ImageHeight = NumberToText(image.Size->Height);
    effect.Required.Sources[0] = image.Path;
}

} // namespace orvane
