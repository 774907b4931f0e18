#pragma once

#include "effects/page/banner_wizard.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Banner/Billboard Wizard.
class BannerWizardForm : public EffectForm<BannerWizard>
{
public:
    explicit BannerWizardForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
