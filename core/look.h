#pragma once

#include "core/complaint.h"

#include <optional>
#include <vector>

namespace orvane {

/// How a control stands for the present values of an effect's fields. What has no value here stays
/// as it is.
struct ControlLook
{
    ControlName Control;
    std::optional<bool> IsShown = {}; ///< with its row, unless that is another control's row
    std::optional<bool> IsEnabled = {};
    std::optional<bool> HoldsFile = {};     ///< of a box for a file name: filled by Browse
    std::optional<TextView> Words = {};     ///< of its label, or of the control when it is a label
    std::optional<TextView> Tip = {};       ///< its tool tip
    std::optional<TextView> WordsLeft = {}; ///< beside it in its row
    std::optional<TextView> WordsRight = {};
    bool operator==(const ControlLook&) const = default;
};

/// What a window shows for the values of its fields, in the order in which it is applied.
using Look = std::vector<ControlLook>;

} // namespace orvane
