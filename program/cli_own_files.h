#pragma once

#include "core/text.h"

#include <optional>
#include <string_view>

namespace orvane {

/// The bytes of an applet's class or of the page script, which travel inside
/// the program; nothing for any other name, or where the build made none.
std::optional<std::string_view> OwnFile(TextView name);

} // namespace orvane
