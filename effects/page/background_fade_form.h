#pragma once

#include "effects/page/background_fade.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Background Color Fading.
class BackgroundFadeForm : public EffectForm<BackgroundFade>
{
public:
    explicit BackgroundFadeForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
