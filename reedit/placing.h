#pragma once

#include "core/payload.h"
#include "reedit/effects_in_page.h"
#include "reedit/page_places.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

/// The edited page, or why there is none.
using PlacedPage = std::variant<std::string, NoPlace>;

/// The effect whose HEAD code and calls WithEffect() replaces with the payload's, since they are of
/// one name; the author is to be asked before. Nothing when there is none.
std::optional<EffectInPage> SharingHead(const std::vector<EffectInPage>& effects,
                                        const FinishedPayload& payload);

/// The page with the effect in it: its BODY code at the place, its HEAD code at the end of the
/// HEAD, or in front of the BODY code where there is no such tag, its calls before those that the
/// BODY tag makes already. An earlier effect that shares the HEAD code and the calls gets the new
/// ones. Line ends are those of the page; every other byte stays, and Without() undoes it. The page
/// script's lines come with it if the payload wants them.
PlacedPage WithEffect(std::string_view page, std::size_t at, const FinishedPayload& payload);

/// The page with the payload's HEAD code, BODY code and calls exactly where the effect's stand,
/// with the line ends of the block that each takes the place of; what one of the two lacks is taken
/// out, or put in as WithEffect() does. Of several blocks in the body, the first and its exact
/// copies give way. Expects an effect of EffectsIn(page) that commands may touch.
PlacedPage WithReplaced(std::string_view page, const EffectInPage& effect,
                        const FinishedPayload& payload);

} // namespace orvane
