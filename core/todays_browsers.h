#pragma once

#include "core/payload.h"

namespace orvane {

/// One sentence on what today's browsers make of an effect, and of what no script can mend; empty
/// for an effect without a wizard.
TextView InTodaysBrowsers(EffectKind kind);

} // namespace orvane
