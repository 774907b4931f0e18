#pragma once

#include "core/catalogue.h"

#include <vector>

namespace orvane {

/// The effects that match what the author typed, among those with a button of their own: each typed
/// word, upper and lower case taken as equal, must begin a word of the effect's title, of the other
/// words that authors use for it, or of its description. Effects found by their title alone come
/// first, those for which the description is needed last; otherwise they keep the order of the
/// catalogue. Empty when no word is typed.
std::vector<const CatalogueRow*> SearchCatalogue(TextView typed);

} // namespace orvane
