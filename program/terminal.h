#pragma once

namespace orvane {

/// Keeps what the toolkit and the browser engine say about themselves off the terminal; what ends
/// the program is still written, and so is everything when QT_LOGGING_RULES is set.
void QuietEngines();

} // namespace orvane
