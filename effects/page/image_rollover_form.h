#pragma once

#include "effects/page/image_rollover.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Image Rollover.
class ImageRolloverForm : public EffectForm<ImageRollover>
{
public:
    explicit ImageRolloverForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
