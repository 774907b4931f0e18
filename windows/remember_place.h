#pragma once

class QWidget;

namespace orvane {

class Settings;

/// Makes the window open at the place and in the size that it had when it was last hidden, in this
/// run or an earlier one; both are stored under its object name. A place on a screen that is gone
/// is moved to one that is there. A stored text that cannot be read is ignored, and the window
/// opens in its own size. Expects a window that was not shown yet and settings that outlive it.
void RememberPlace(QWidget& window, Settings& settings);

} // namespace orvane
