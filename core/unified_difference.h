#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// What must be changed in `before` to get `after`, line by line, as patch(1) takes it: with these
/// names in its head, three lines around each change, and line ends as they are. Empty where both
/// are the same.
std::string UnifiedDifference(std::string_view before, std::string_view after,
                              std::string_view oldName, std::string_view newName);

} // namespace orvane
