#pragma once

#include "effects/text/fading_message.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Fading Message effect.
class FadingMessageForm : public EffectForm<FadingMessage>
{
public:
    explicit FadingMessageForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
