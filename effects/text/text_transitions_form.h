#pragma once

#include "effects/text/text_transitions.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Text Transitions and of Image Transitions, which OrvaneCore::TransitionsImageMode
/// tells apart.
class TextTransitionsForm : public EffectForm<TextTransitions>
{
public:
    explicit TextTransitionsForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddItemsPage();
    void AddChangePage();
    void AddLookPage();

    const TextView m_heading;
};

} // namespace orvane
