#pragma once

#include "core/dialogs.h"

#include <cstdint>

namespace orvane {

/// Kinds of files, as FileFilter() counts them.
inline constexpr std::int32_t pageFiles = 0;
inline constexpr std::int32_t imageFiles = 1;
inline constexpr std::int32_t soundFiles = 6;

/// The filter of a file kind: 0 pages, 1 images, 2 multimedia, 3 Java, 4 texts, 5 programs, 6
/// sounds, 7 videos; empty for any other number.
TextView FileFilter(std::int32_t kind);

/// What a Browse button of a wizard opens for files of that kind.
FileRequest BrowseRequest(std::int32_t kind, FolderPurpose purpose);

/// The filter of images that browsers of all times show, and the masks of their files.
inline constexpr TextView imageFilter =
    u"All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg";
inline constexpr TextView pictureMasks = u"*.gif;*.jpg;*.jpeg";

/// The masks of the files of images that today's browsers show and that Orvane can measure.
inline constexpr TextView blockPictureMasks = u"*.gif;*.jpg;*.jpeg;*.png";

/// What Browse opens for a sound that today's browsers play.
FileRequest BlockSoundRequest();

/// What the wizards of applets open for an image, and for a Web page to link to.
FileRequest ImageRequest();
FileRequest WebPageRequest();

} // namespace orvane
