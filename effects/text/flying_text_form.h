#pragma once

#include "effects/text/flying_text.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Flying Text effect.
class FlyingTextForm : public EffectForm<FlyingText>
{
public:
    explicit FlyingTextForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
