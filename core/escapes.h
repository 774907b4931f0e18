#pragma once

#include "core/text.h"

namespace orvane {

/// `text` on one line: backslash, CR and LF, and each of the characters in `signs`, behind a
/// backslash; CR and LF as the letters r and n.
Text Escaped(TextView text, TextView signs = {});

/// The text that Escaped() was given. A backslash at the end stays.
Text Unescaped(TextView text);

} // namespace orvane
