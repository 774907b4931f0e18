#pragma once

#include "effects/page/image_scroller.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Image Filmstrip Scroller.
class ImageScrollerForm : public EffectForm<ImageScroller>
{
public:
    explicit ImageScrollerForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
