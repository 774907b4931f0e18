#pragma once

#include "effects/page/falling_images.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Falling/Floating Images.
class FallingImagesForm : public EffectForm<FallingImages>
{
    Q_OBJECT

public:
    explicit FallingImagesForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
