#pragma once

#include "effects/page/earthquake.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Browser Window Earthquake.
class EarthquakeForm : public EffectForm<Earthquake>
{
public:
    explicit EarthquakeForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
