#pragma once

#include "effects/page/scrolling_credits.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Scrolling Credits.
class ScrollingCreditsForm : public EffectForm<ScrollingCredits>
{
public:
    explicit ScrollingCreditsForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
