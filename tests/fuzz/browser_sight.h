#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orvane::testing {

/// Where the comments that a browser sees in a page begin and end, worked out without the program's
/// code. Of the elements whose text is no markup it knows SCRIPT alone.
std::vector<std::pair<std::size_t, std::size_t>> CommentsSeen(const std::string& page);

} // namespace orvane::testing
