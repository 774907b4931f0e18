#pragma once

#include "effects/page/sound_effect.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Sound Effect.
class SoundEffectForm : public EffectForm<SoundEffect>
{
public:
    explicit SoundEffectForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
