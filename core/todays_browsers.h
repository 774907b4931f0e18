#pragma once

#include "core/payload.h"

namespace orvane {

/// One sentence for the author on how an effect runs in today's browsers, and on what the page
/// script cannot change; empty for an effect without a wizard.
TextView InTodaysBrowsers(EffectKind kind);

/// Whether an effect runs better, or at all, with the page script.
bool GainsByPageScript(EffectKind kind);

} // namespace orvane
