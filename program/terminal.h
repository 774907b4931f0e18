#pragma once

class QObject;

namespace orvane {

/// Lets a signal by which a terminal or the end of a session stops the program end its event loops
/// instead, so that every window closes as by Cancel and leaves nothing behind. A second signal
/// stops the program at once. Works as long as `owner` lives.
void EndOrderlyOnSignals(QObject& owner);

/// Keeps log messages of the toolkit and the browser engine off the terminal, except a fatal one
/// that ends the program. Does nothing when the environment variable QT_LOGGING_RULES is set.
void QuietEngines();

} // namespace orvane
