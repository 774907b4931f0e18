#pragma once

#include "effects/text/navigator_ticker.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Navigator Ticker.
class NavigatorTickerForm : public EffectForm<NavigatorTicker>
{
public:
    explicit NavigatorTickerForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
