#pragma once

#include "core/text.h"

#include <QListWidget>
#include <QWidget>

#include <vector>

namespace orvane::testing {

/// Presses and releases the left button on a row of a list box.
void ClickRow(QWidget& window, const char* name, int row);

/// Double-clicks a row of a list box.
void DoubleClickRow(QWidget& window, const char* name, int row);

/// Double clicks below the rows of a list box. Expects that they leave room there.
void DoubleClickBeside(QWidget& window, const char* name);

/// Presses the right button on a row of a list box, which asks for its context menu.
void RightPressRow(QWidget& window, const char* name, int row);

/// Drags a row onto another one: onto its lower half when that row is further down, else onto its
/// upper half. False when the list refused it.
bool DragRow(QWidget& window, const char* name, int from, int to);

/// Drops files, or addresses with "://", on a widget, to be moved or copied; false when it refused
/// them.
bool DropFiles(QWidget& target, const std::vector<Text>& paths);

} // namespace orvane::testing
