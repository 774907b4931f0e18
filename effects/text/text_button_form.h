#pragma once

#include "effects/text/text_button.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Text Button.
class TextButtonForm : public EffectForm<TextButton>
{
public:
    explicit TextButtonForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
