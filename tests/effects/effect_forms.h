#pragma once

#include "effects/applet/advanced_animator_form.h"
#include "effects/applet/image_effects_form.h"
#include "effects/applet/image_fade_form.h"
#include "effects/applet/more_image_effects_form.h"
#include "effects/applet/typewriter_text_form.h"
#include "effects/page/cursor_trail_form.h"
#include "effects/page/dynamic_button_form.h"
#include "effects/page/popup_alert_form.h"
#include "effects/page/popup_window_form.h"
#include "effects/page/slideshow_form.h"
#include "effects/text/digital_clock_form.h"
#include "effects/text/status_bar_ticker_form.h"

#include <gtest/gtest.h>

namespace orvane::testing {

/// The windows of all effects.
using EffectForms =
    ::testing::Types<AdvancedAnimatorForm, DigitalClockForm, StatusBarTickerForm, CursorTrailForm,
                     DynamicButtonForm, PopupAlertForm, PopupWindowForm, SlideshowForm,
                     ImageEffectsForm, ImageFadeForm, MoreImageEffectsForm, TypewriterTextForm>;

} // namespace orvane::testing
