#pragma once

#include "core/text.h"

namespace orvane {

/// The value that follows `key` in a pasted tag, up to the next quote behind its first character; a
/// quoted value keeps its opening quote. Empty when the key is missing or no quote follows.
Text GetAppletValue(TextView pasted, TextView key);

} // namespace orvane
