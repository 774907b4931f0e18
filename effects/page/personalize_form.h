#pragma once

#include "effects/page/personalize.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Personalize your Web page.
class PersonalizeForm : public EffectForm<Personalize>
{
public:
    explicit PersonalizeForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
