#pragma once

#include "core/text.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace orvane {

/// A text as JSON has it, in UTF-8 with its quotes.
std::string JsonText(TextView text);

/// An object of members that are JSON already, in this order.
std::string JsonObject(std::initializer_list<std::pair<std::string_view, std::string>> members);

/// An array of elements that are JSON already.
std::string JsonArray(const std::vector<std::string>& elements);

} // namespace orvane
