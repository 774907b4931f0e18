#pragma once

#include "effects/text/tooltips.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Tooltips.
class TooltipsForm : public EffectForm<Tooltips>
{
public:
    explicit TooltipsForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddTextPage();
    void AddBoxPage();
    void AddHoverPage();
};

} // namespace orvane
