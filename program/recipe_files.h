#pragma once

#include "core/workbench.h"
#include "effects/effects.h"

#include <optional>

namespace orvane {

/// The effect of a recipe: of the one with this full path, or of one that the author picks when it
/// is empty. Nothing when the author picks none, or when the recipe is wrong, which the author is
/// told line by line.
std::optional<AnyEffect> OpenRecipe(Workbench& bench, Text path = {});

/// Writes the effect's recipe to a file that the author picks, which is proposed with this full
/// path; with an empty one it has the effect's name. Gives the path; nothing when the author picks
/// none, or when the file cannot be written, which the author is told.
std::optional<Text> SaveAsRecipe(Workbench& bench, const AnyEffect& effect, const Text& path);

} // namespace orvane
