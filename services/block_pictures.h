#pragma once

#include "core/block.h"
#include "services/hints.h"
#include "services/picked_image.h"

#include <vector>

namespace orvane {

/// The picture of a block that a picked file is, for a page beside which the file will lie. Expects
/// an image with a size.
BlockPicture PictureOf(const PickedImage& image);

/// The picture of a block of which only the name of its file is known, as it lies beside the page.
BlockPicture PictureNamed(TextView fileName);

/// The hint, at the field `txtLink`, that a link on pictures without a description has no name, or
/// nothing.
std::vector<Hint> HintsOfLink(TextView description, TextView link);

/// The hint at a link without a name.
std::vector<Hint> HintsOf(const BlockPicture& picture);

/// Mends a picture as a wizard does: each text stands on one line, a link that begins with "www."
/// gets "http://" in front, and no size is below 0.
void Tidy(BlockPicture& picture);

} // namespace orvane
