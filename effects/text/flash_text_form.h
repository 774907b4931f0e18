#pragma once

#include "effects/text/flashing_text.h"
#include "effects/text/shaking_text.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Flashing Text.
class FlashingTextForm : public EffectForm<FlashingText>
{
public:
    explicit FlashingTextForm(Workbench& bench, QWidget* parent = nullptr);
};

/// The window of Shaking Text, which is the same one with other fields.
class ShakingTextForm : public EffectForm<ShakingText>
{
public:
    explicit ShakingTextForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
