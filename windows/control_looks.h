#pragma once

#include "core/look.h"

class QWidget;

namespace orvane {

/// Gives the controls of a window this look. Expects a control for each name; throws
/// std::logic_error for a name without one.
void ShowLook(QWidget& window, const Look& look);

} // namespace orvane
