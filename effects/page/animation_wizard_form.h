#pragma once

#include "effects/page/animation_wizard.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Animation Wizard.
class AnimationWizardForm : public EffectForm<AnimationWizard>
{
    Q_OBJECT

public:
    explicit AnimationWizardForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
