#pragma once

#include "core/payload.h"
#include "reedit/effects_in_page.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// The page without the effect, every other byte as it is: its blocks with what an insertion wrote
/// around them, its calls and, when no effect is left that needs it, the page script's lines. An
/// effect that no command may touch stays. Expects an effect of EffectsIn(page).
std::string Without(std::string_view page, const EffectInPage& effect);

/// The page as it was before the payload was inserted, whether a browser sees the effect there or
/// not; nothing when the page does not hold it as an insertion leaves it.
std::optional<std::string> WithoutInsertion(std::string_view page, const FinishedPayload& payload);

} // namespace orvane
