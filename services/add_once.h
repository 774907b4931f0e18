#pragma once

#include <algorithm>
#include <vector>

namespace orvane {

/// Adds a value at the end unless it is among the others already.
template <class Value>
void AddOnce(std::vector<Value>& values, const auto& value)
{
    if (std::ranges::find(values, value) == values.end())
        values.emplace_back(value);
}

} // namespace orvane
