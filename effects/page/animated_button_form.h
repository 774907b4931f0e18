#pragma once

#include "effects/page/animated_button.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Animated Button.
class AnimatedButtonForm : public EffectForm<AnimatedButton>
{
public:
    explicit AnimatedButtonForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
