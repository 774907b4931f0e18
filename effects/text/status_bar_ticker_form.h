#pragma once

#include "effects/text/status_bar_ticker.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Status Bar Ticker. The program never fills it from a pasted script, since such
/// scripts are not recognised.
class StatusBarTickerForm : public EffectForm<StatusBarTicker>
{
public:
    explicit StatusBarTickerForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
