#pragma once

#include "core/catalogue.h"

#include <vector>

namespace orvane {

/// The effects with a picture of their own that answer to what the author typed: each typed word,
/// case ignored, begins a word of the effect's title, of the other words that authors have for it,
/// or of its description. Effects found by their title alone come first, those for which the
/// description is needed last; otherwise they stand as in the catalogue. Without a word none is
/// found.
std::vector<const CatalogueRow*> SearchCatalogue(TextView typed);

} // namespace orvane
