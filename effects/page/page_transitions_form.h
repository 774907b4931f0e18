#pragma once

#include "effects/page/page_transitions.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Web Page Transitions.
class PageTransitionsForm : public EffectForm<PageTransitions>
{
public:
    explicit PageTransitionsForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
