#pragma once

#include "core/complaint.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace orvane {

/// Puts a complaint behind the others unless the author will be told the same already.
inline void AddOnce(std::vector<Complaint>& complaints, const std::optional<Complaint>& complaint)
{
    if (complaint && std::ranges::find(complaints, *complaint) == complaints.end())
        complaints.push_back(*complaint);
}

} // namespace orvane
