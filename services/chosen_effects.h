#pragma once

#include "core/catalogue.h"
#include "core/settings.h"

#include <vector>

namespace orvane {

/// Effects of the catalogue, each once.
using EffectRows = std::vector<const CatalogueRow*>;

/// The effects that the author marked as favorites, the first mark first. Names that the catalogue
/// does not know are passed over.
EffectRows FavoriteEffects(const Settings& settings);

/// Marks the effect as a favorite, behind the others, or takes its mark off.
void ToggleFavorite(Settings& settings, const CatalogueRow& effect);

/// The last ten effects whose wizard was opened, the last one first.
EffectRows RecentEffects(const Settings& settings);

/// Puts the effect in front of the recent ones.
void RememberEffect(Settings& settings, EffectKind effect);

} // namespace orvane
