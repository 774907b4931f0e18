#pragma once

#include "core/text.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace orvane {

/// A part of a page to which the author points.
struct PlaceToPoint
{
    Text Words;             ///< such as "Line 12, heading: Welcome"
    std::size_t Before = 0; ///< the place in front of it
    std::size_t After = 0;  ///< the place behind it, the same for the page's top and its end
    bool operator==(const PlaceToPoint&) const = default;
};

/// The top of the page, its parts in the order in which they begin, and its end.
std::vector<PlaceToPoint> PlacesToPoint(std::string_view page);

} // namespace orvane
