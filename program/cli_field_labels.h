#pragma once

#include "core/complaint.h"
#include "core/text.h"

namespace orvane {

/// What the effect window of this name calls a field; empty for a field without words.
TextView FieldLabel(ControlName form, ControlName field);

} // namespace orvane
