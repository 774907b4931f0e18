#pragma once

#include "effects/applet/advanced_animator_form.h"
#include "effects/applet/image_effects_form.h"
#include "effects/applet/image_fade_form.h"
#include "effects/applet/more_image_effects_form.h"
#include "effects/applet/typewriter_text_form.h"
#include "effects/page/all_in_one_button_form.h"
#include "effects/page/animated_button_form.h"
#include "effects/page/animation_wizard_form.h"
#include "effects/page/anti_spam_link_form.h"
#include "effects/page/background_fade_form.h"
#include "effects/page/banner_wizard_form.h"
#include "effects/page/color_scrollbars_form.h"
#include "effects/page/cursor_trail_form.h"
#include "effects/page/day_calendar_form.h"
#include "effects/page/dynamic_button_form.h"
#include "effects/page/earthquake_form.h"
#include "effects/page/falling_images_form.h"
#include "effects/page/image_rollover_form.h"
#include "effects/page/image_scroller_form.h"
#include "effects/page/page_transitions_form.h"
#include "effects/page/password_protection_form.h"
#include "effects/page/personalize_form.h"
#include "effects/page/popup_alert_form.h"
#include "effects/page/popup_window_form.h"
#include "effects/page/pulldown_menu_form.h"
#include "effects/page/scrolling_credits_form.h"
#include "effects/page/search_box_form.h"
#include "effects/page/slideshow_form.h"
#include "effects/page/sliding_message_form.h"
#include "effects/page/sound_effect_form.h"
#include "effects/page/thought_bubbles_form.h"
#include "effects/text/digital_clock_form.h"
#include "effects/text/fading_message_form.h"
#include "effects/text/flash_text_form.h"
#include "effects/text/flying_text_form.h"
#include "effects/text/navigator_ticker_form.h"
#include "effects/text/random_quote_form.h"
#include "effects/text/smooth_scroll_form.h"
#include "effects/text/status_bar_ticker_form.h"
#include "effects/text/swirly_text_form.h"
#include "effects/text/text_button_form.h"
#include "effects/text/text_effects_form.h"
#include "effects/text/text_transitions_form.h"
#include "effects/text/tooltips_form.h"
#include "effects/text/vertical_scroller_form.h"

#include <memory>
#include <tuple>

namespace orvane {

/// The windows of all effects, each named once.
using EffectWindows = std::tuple<
    AdvancedAnimatorForm, AllInOneButtonForm, AnimatedButtonForm, AnimationWizardForm,
    AntiSpamLinkForm, BackgroundFadeForm, BannerWizardForm, ColorScrollbarsForm, CursorTrailForm,
    DayCalendarForm, DigitalClockForm, DynamicButtonForm, EarthquakeForm, FadingMessageForm,
    FallingImagesForm, FlashingTextForm, FlyingTextForm, ImageEffectsForm, ImageFadeForm,
    ImageRolloverForm, ImageScrollerForm, MoreImageEffectsForm, NavigatorTickerForm,
    PageTransitionsForm, PasswordProtectionForm, PersonalizeForm, PopupAlertForm, PopupWindowForm,
    PulldownMenuForm, RandomImageForm, RandomQuoteForm, ScrollingCreditsForm, SearchBoxForm,
    ShakingTextForm, SlideshowForm, SlidingMessageForm, SmoothScrollForm, SoundEffectForm,
    StatusBarTickerForm, SwirlyTextForm, TextButtonForm, TextEffectsForm, TextTransitionsForm,
    ThoughtBubblesForm, TooltipsForm, TypewriterTextForm, VerticalScrollerForm>;

/// A fresh window of that kind of effect; null where there is none.
std::unique_ptr<WizardForm> MakeWizard(EffectKind kind, Workbench& bench,
                                       QWidget* parent = nullptr);

} // namespace orvane
