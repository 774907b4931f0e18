#pragma once

#include "services/picked_image.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace orvane {

/// The size of a picture file and a small picture of it.
struct LoadedPicture
{
    QSize Size;       ///< of the picture itself, in pixels
    QImage Thumbnail; ///< no larger than asked for
};

/// Reads a GIF, JPEG, PNG or BMP picture, told by its content and not by its name, with a thumbnail
/// that fits into `room` pixels. Nothing for any other file, a broken one, and one of more than
/// 64 MB or 64 million pixels.
std::optional<LoadedPicture> LoadPicture(const QString& path, QSize room);

/// The path of an image file with its size in pixels; without a size when LoadPicture() cannot read
/// the file.
PickedImage Measured(const Text& path);

} // namespace orvane
