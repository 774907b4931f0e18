#pragma once

#include "core/complaint.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace orvane {

/// Adds a complaint, if there is one, unless the same is among them already.
inline void AddOnce(std::vector<Complaint>& complaints, const std::optional<Complaint>& complaint)
{
    if (complaint && std::ranges::find(complaints, *complaint) == complaints.end())
        complaints.push_back(*complaint);
}

} // namespace orvane
