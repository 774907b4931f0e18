#pragma once

#include "core/text.h"

#include <string_view>

namespace orvane {

/// A control's object name; always a literal, or one that lives as long as its window.
using ControlName = std::string_view;

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
    ControlName Control;
    Tone Look = Tone::Plain;
    bool operator==(const Complaint&) const = default;
};

} // namespace orvane
