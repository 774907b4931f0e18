#pragma once

#include "core/text.h"

#include <string>

namespace orvane {

/// How a message box looks: with no sign, or with the exclamation sign.
enum class Tone
{
    Plain,
    Exclamation,
};

/// A failed check: what the author is told, and the control that gets the focus (empty for none).
struct Complaint
{
    Text Words;
    std::string Control;
    Tone Look = Tone::Plain;
    bool operator==(const Complaint&) const = default;
};

} // namespace orvane
