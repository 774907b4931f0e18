#pragma once

#include "reedit/body_calls.h"
#include "reedit/effects_in_page.h"
#include "reedit/inserted_blocks.h"

#include <string_view>
#include <vector>

namespace orvane {

/// The effect's parts in the HEAD and in the body.
std::vector<EffectPart> BlocksOf(const EffectInPage& effect);

/// The effect's calls in the BODY tag, as they stand there.
std::vector<BodyCall> CallsOf(std::string_view page, const EffectInPage& effect);

/// What goes with these blocks. Expects blocks of EffectsIn(page).
std::vector<Splice> CutsOfBlocks(std::string_view page, const std::vector<EffectPart>& blocks);

/// What goes with the effect's blocks and calls. Expects an effect of EffectsIn(page).
std::vector<Splice> CutsOf(std::string_view page, const EffectInPage& effect);

} // namespace orvane
