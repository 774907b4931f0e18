#pragma once

#include "effects/text/smooth_scroll.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Smooth Scrolling Text Ticker.
class SmoothScrollForm : public EffectForm<SmoothScroll>
{
public:
    explicit SmoothScrollForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
