#pragma once

#include "core/workbench.h"
#include "effects/effects.h"

#include <functional>

namespace orvane {

class WizardForm;

/// Adds the button "Menu" beside the wizard's help button: its menu saves the fields as a recipe,
/// and fills them from one. A recipe of another effect goes to `openOther`; without that, the
/// author is told of which effect it is. Called once, before the wizard is shown.
void AddRecipeMenu(WizardForm& wizard, Workbench& bench,
                   std::function<void(AnyEffect effect)> openOther = {});

} // namespace orvane
