#pragma once

namespace orvane {

/// Keeps log messages of the toolkit and the browser engine off the terminal, except a fatal one
/// that ends the program. Does nothing when the environment variable QT_LOGGING_RULES is set.
void QuietEngines();

} // namespace orvane
