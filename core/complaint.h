#pragma once

#include "core/text.h"

#include <string_view>

namespace orvane {

/// A control's object name. The view owns no characters: expects a literal, or a name that lives as
/// long as its window.
using ControlName = std::string_view;

/// How a message box looks: without an icon, or with the exclamation icon.
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
