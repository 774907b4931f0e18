#pragma once

#include "insertion/page_markup.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// A stretch of a page and the bytes that take its place.
struct Splice
{
    CodeSpan Old;
    std::string New;
};

/// The page with these stretches replaced and every other byte as it is. Stretches that overlap are
/// taken for one, with the bytes of each. Expects that they lie inside the page.
std::string Spliced(std::string_view page, std::vector<Splice> splices);

/// The line end that the page has first; CR LF when it has none.
std::string_view LineEndOf(std::string_view page);

/// The length of the line end at that place: 0, 1 or 2.
std::size_t LineEndAt(std::string_view page, std::size_t at);

} // namespace orvane
