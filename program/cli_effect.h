#pragma once

#include "effects/effects.h"
#include "program/cli_request.h"
#include "program/cli_world.h"

#include <variant>
#include <vector>

namespace orvane {

/// What is wrong with what the author gave, a line each.
using CliFaults = std::vector<Text>;

/// The effect of a recipe.
struct CliRecipe
{
    AnyEffect Effect;
    Text Folder; ///< of the recipe, with its final separator
};

/// Reads the recipe of that name; else its faults, with its path and their
/// lines.
std::variant<CliRecipe, CliFaults> ReadRecipeFile(const CliWorld& world, TextView name);

/// An effect that is ready for pages.
struct CliPayload
{
    FinishedPayload Payload;
    Text Draft; ///< its fields, tidied
};

/// How secrets that are needed and not given come to an effect.
enum class CliSecrets
{
    Wanted,    ///< from the environment variable "ORVANE_" and the name of the
               ///< field, else by a prompt
    Pretended, ///< any will do, since nothing is made
};

/// Sets the fields of all --set options, brings the secrets, checks and tidies
/// the effect as when its wizard ends, and generates it. `world` knows how a
/// secret is asked for.
std::variant<CliPayload, CliFaults> Prepare(AnyEffect effect, const CliRequest& request,
                                            const CliWorld& world,
                                            CliSecrets secrets = CliSecrets::Wanted);

/// Tells the faults; gives Failed.
CliExit Tell(const CliWorld& world, const CliFaults& faults);

} // namespace orvane
