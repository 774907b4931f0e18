#pragma once

#include "effects/text/text_effects.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Text Effects.
class TextEffectsForm : public EffectForm<TextEffects>
{
public:
    explicit TextEffectsForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
