#pragma once

#include "core/catalogue.h"
#include "core/settings.h"

#include <vector>

namespace orvane {

/// Effects of the catalogue, each once.
using EffectRows = std::vector<const CatalogueRow*>;

/// The effects that the author marked as favorites, in the order in which they were marked. Stored
/// names that are not in the catalogue are ignored.
EffectRows FavoriteEffects(const Settings& settings);

/// Marks the effect as a favorite, behind the others; removes the mark if it has one.
void ToggleFavorite(Settings& settings, const CatalogueRow& effect);

/// The effects whose wizard was opened last, at most ten, the latest first.
EffectRows RecentEffects(const Settings& settings);

/// Puts the effect in front of the recent ones. Expects one that is in the catalogue.
void RememberEffect(Settings& settings, EffectKind effect);

} // namespace orvane
