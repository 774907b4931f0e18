#pragma once

#include "core/text.h"

#include <functional>
#include <optional>

class QMimeData;
class QWidget;

namespace orvane {

/// The full path of the one file on this computer that is dragged; nothing for several, for
/// folders and for anything else.
std::optional<Text> DroppedFile(const QMimeData& dragged);

/// Lets the author drop one file on the widget, on the boxes in it too. A file that `admits` does
/// not like meets the sign that it cannot be dropped.
void TakeDroppedFile(QWidget* widget, std::function<bool(TextView path)> admits,
                     std::function<void(const Text& path)> take);

} // namespace orvane
