#pragma once

#include "program/cli_request.h"
#include "program/cli_world.h"

namespace orvane {

// The commands of the command line program. Each gives the exit code, after it
// told what was asked for and whatever went wrong.

/// Lists all effects or the fields of one, or prints a fresh one's recipe.
CliExit ShowEffects(const CliRequest& request, CliWorld& world);

/// Prints the effect of a recipe, puts it into pages or makes a page around it.
CliExit MakeEffect(const CliRequest& request, CliWorld& world);

/// Lists the effects that stand in pages.
CliExit ListPages(const CliRequest& request, CliWorld& world);

/// Takes every effect of one name out of pages.
CliExit RemoveEffect(const CliRequest& request, CliWorld& world);

/// Sets fields of every effect of one name where it stands in pages.
CliExit ChangeEffect(const CliRequest& request, CliWorld& world);

/// Tells what is wrong with recipes.
CliExit CheckRecipes(const CliRequest& request, CliWorld& world);

} // namespace orvane
