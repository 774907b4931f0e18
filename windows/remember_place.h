#pragma once

class QWidget;

namespace orvane {

class Settings;

/// Opens the window where and as large as it was when it was last hidden, in this run or an earlier
/// one, and remembers both from now on under its object name. A place on a screen that is gone
/// becomes one on a screen that is there; what cannot be read is passed over, and the window opens
/// in its own size. Expects a window that was not shown yet and settings that outlive it.
void RememberPlace(QWidget& window, Settings& settings);

} // namespace orvane
