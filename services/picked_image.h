#pragma once

#include "core/file_names.h"
#include "core/numbers.h"
#include "services/recorded_files.h"

#include <optional>

namespace orvane {

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
    effect.Required.RequiredFileSources[0] = image.Path;
}

} // namespace orvane
