#pragma once

#include "core/text.h"

#include <optional>

class QWidget;

namespace orvane {

/// Remembers, with the windows in which the field stands, that the author picked the file of this
/// full path for it.
void RememberPicked(QWidget& field, TextView path);

/// The full path of the file of that name that was picked last in this window or in one that it
/// opened; nothing when none was.
std::optional<Text> PickedFile(const QWidget& window, TextView name);

} // namespace orvane
