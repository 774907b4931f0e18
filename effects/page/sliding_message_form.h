#pragma once

#include "effects/page/sliding_message.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Sliding Instant Message Window.
class SlidingMessageForm : public EffectForm<SlidingMessage>
{
public:
    explicit SlidingMessageForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
