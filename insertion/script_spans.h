#pragma once

#include "insertion/page_markup.h"

#include <string_view>

namespace orvane {

/// The script between the tags of the first SCRIPT element whose open tag begins at or behind
/// `from`; an empty span at the end of `code` when there is none. Expects `from` outside of a tag.
CodeSpan NextScript(std::string_view code, std::size_t from);

} // namespace orvane
