#pragma once

#include "effects/page/color_scrollbars.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Color Scrollbars.
class ColorScrollbarsForm : public EffectForm<ColorScrollbars>
{
    Q_OBJECT

public:
    explicit ColorScrollbarsForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
