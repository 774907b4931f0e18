#pragma once

#include "core/pasted_tag.h"
#include "core/text.h"

#include <array>

namespace orvane {

/// The value that follows `key` in a pasted tag, up to the next quote behind its first character; a
/// quoted value keeps its opening quote. Empty when the key is missing or no quote follows.
Text GetAppletValue(TextView pasted, TextView key);

/// The value that follows `key` in the tag, read as the tag says: as GetAppletValue() gives it, or
/// alone, without its quotes and ended by a blank or ">" where it has none.
Text TagValue(const PastedTag& tag, TextView key);

/// The leading number of that value, 0 for none, brought within the two bounds.
int TagNumber(const PastedTag& tag, TextView key, int lowest, int highest);

/// The cells of a value of the earlier applet, whose lists are joined by bars.
using PipeValues = std::array<Text, 3>;

/// The first three pieces of a joined value, the last one without its final character. All cells
/// are empty when the text has no bar.
PipeValues PipeParse(TextView text);

} // namespace orvane
