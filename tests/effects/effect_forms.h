#pragma once

#include "effects/applet/advanced_animator_form.h"
#include "effects/text/digital_clock_form.h"
#include "effects/text/status_bar_ticker_form.h"

#include <gtest/gtest.h>

namespace orvane::testing {

/// The windows of all effects.
using EffectForms = ::testing::Types<AdvancedAnimatorForm, DigitalClockForm, StatusBarTickerForm>;

} // namespace orvane::testing
