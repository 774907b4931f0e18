#pragma once

#include "effects/text/swirly_text.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Swirly Text effect.
class SwirlyTextForm : public EffectForm<SwirlyText>
{
public:
    explicit SwirlyTextForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
