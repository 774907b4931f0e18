#pragma once

#include "insertion/page_markup.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// A part of what a page shows, in front of which and behind which an effect can stand: an element
/// that is no part of a line of text or, of a table or a list, the inside of a cell or an item. An
/// effect in the page is one part.
struct PagePart
{
    CodeSpan Tag;           ///< the open tag by which a browser shows the part
    std::size_t Before = 0; ///< the place in front of it
    std::size_t After = 0;  ///< the place behind it
    bool operator==(const PagePart&) const = default;
};

/// The parts of a page in the order of their tags, a part of another one behind it.
std::vector<PagePart> PartsOf(std::string_view page);

/// The page for the pane alone: each part's tag has its number, by which the pane knows the part;
/// the parts stay the same. Expects PartsOf(page).
std::string WithPartNumbers(std::string_view page, const std::vector<PagePart>& parts);

} // namespace orvane
