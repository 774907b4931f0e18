#pragma once

#include "core/pasted_tag.h"
#include "core/text.h"

#include <array>
#include <vector>

namespace orvane {

/// The value that follows `key` in a pasted tag, up to the next quote behind its first character,
/// so that a quoted value keeps its opening quote. Quotes in `key` are ignored. Empty when the key
/// is missing or no quote follows.
Text GetAppletValue(TextView pasted, TextView key);

/// The value that follows `key`, read as `tag.Reading` says: with Kept as GetAppletValue() gives
/// it; with TakenOff without its quotes, and up to a blank, ">" or line end where it has none.
/// Empty when the key is missing.
Text TagValue(const PastedTag& tag, TextView key);

/// The number at the start of that value, rounded and kept within `lowest` to `highest`; a value
/// without one, or with a kept opening quote, counts as 0.
int TagNumber(const PastedTag& tag, TextView key, int lowest, int highest);

/// The tag, to be read without the quotes of its values.
PastedTag WithoutQuotes(PastedTag tag);

/// The colour that follows `key` as CSS takes it, such as "#FF8000" for "255,128,0"; empty when the
/// key is missing.
Text TagColor(const PastedTag& tag, TextView key);

/// The pictures of an animation applet, up to the first number that is missing.
std::vector<Text> TagImages(const PastedTag& tag);

/// The highest number that a value has of which an applet takes several.
inline constexpr int lastNumberOfTag = 30;

/// The value of that number, whose key is one of two; empty when both are missing.
Text NumberedTagValue(const PastedTag& tag, TextView first, TextView second, int number);

/// The pieces of a value of the earlier applet, which joins the entries of a list by "|".
using PipeValues = std::array<Text, 3>;

/// The piece before the first "|", the one before the second, and all that follows. The last of
/// them loses its final character. All are empty when the text has no "|".
PipeValues PipeParse(TextView text);

} // namespace orvane
