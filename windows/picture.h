#pragma once

#include "services/picked_image.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace orvane {

/// A picture file as far as a window needs it.
struct LoadedPicture
{
    QSize Size;       ///< of the picture itself, in pixels
    QImage Thumbnail; ///< no larger than asked for
};

/// Reads a GIF, JPEG, PNG or BMP picture, known by its content, with a thumbnail that fits in
/// `room`; nothing for any other file, a broken one, and one too large to be read while the author
/// waits.
std::optional<LoadedPicture> LoadPicture(const QString& path, QSize room);

/// An image file that the author picked, measured.
PickedImage Measured(const Text& path);

} // namespace orvane
