/// The scripts that blocks run by.
#pragma once

#include "core/text.h"

namespace orvane {

/// The script of a kind of block, such as u"scroller": one line of ASCII that never changes with
/// the author's values. Empty for a name that no kind has.
TextView BlockScript(TextView kind);

} // namespace orvane
