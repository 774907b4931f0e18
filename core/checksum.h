#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// A number of 16 digits that is another for every change of the bytes that somebody makes by hand.
std::string ChecksumOf(std::string_view bytes);

} // namespace orvane
