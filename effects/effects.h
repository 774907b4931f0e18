#pragma once

#include "core/draft.h"
#include "core/field_facts.h"
#include "core/surroundings.h"
#include "effects/applet/advanced_animator.h"
#include "effects/applet/image_effects.h"
#include "effects/applet/image_fade.h"
#include "effects/applet/more_image_effects.h"
#include "effects/applet/typewriter_text.h"
#include "effects/page/all_in_one_button.h"
#include "effects/page/animated_button.h"
#include "effects/page/animation_wizard.h"
#include "effects/page/anti_spam_link.h"
#include "effects/page/background_fade.h"
#include "effects/page/banner_wizard.h"
#include "effects/page/color_scrollbars.h"
#include "effects/page/cursor_trail.h"
#include "effects/page/day_calendar.h"
#include "effects/page/dynamic_button.h"
#include "effects/page/earthquake.h"
#include "effects/page/falling_images.h"
#include "effects/page/image_rollover.h"
#include "effects/page/image_scroller.h"
#include "effects/page/page_transitions.h"
#include "effects/page/password_protection.h"
#include "effects/page/personalize.h"
#include "effects/page/popup_alert.h"
#include "effects/page/popup_window.h"
#include "effects/page/pulldown_menu.h"
#include "effects/page/random_image.h"
#include "effects/page/scrolling_credits.h"
#include "effects/page/search_box.h"
#include "effects/page/slideshow.h"
#include "effects/page/sliding_message.h"
#include "effects/page/sound_effect.h"
#include "effects/page/thought_bubbles.h"
#include "effects/text/digital_clock.h"
#include "effects/text/fading_message.h"
#include "effects/text/flashing_text.h"
#include "effects/text/flying_text.h"
#include "effects/text/navigator_ticker.h"
#include "effects/text/random_quote.h"
#include "effects/text/shaking_text.h"
#include "effects/text/smooth_scroll.h"
#include "effects/text/status_bar_ticker.h"
#include "effects/text/swirly_text.h"
#include "effects/text/text_button.h"
#include "effects/text/text_effects.h"
#include "effects/text/text_transitions.h"
#include "effects/text/tooltips.h"
#include "effects/text/vertical_scroller.h"

#include <functional>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace orvane {

/// The parameters of all effects, each named once.
using EffectParameters =
    std::variant<AdvancedAnimator, AllInOneButton, AnimatedButton, AnimationWizard, AntiSpamLink,
                 BackgroundFade, BannerWizard, ColorScrollbars, CursorTrail, DayCalendar,
                 DigitalClock, DynamicButton, Earthquake, FadingMessage, FallingImages,
                 FlashingText, FlyingText, ImageEffects, ImageFade, ImageRollover, ImageScroller,
                 MoreImageEffects, NavigatorTicker, PageTransitions, PasswordProtection,
                 Personalize, PopupAlert, PopupWindow, PulldownMenu, RandomImage, RandomQuote,
                 ScrollingCredits, SearchBox, ShakingText, Slideshow, SlidingMessage, SmoothScroll,
                 SoundEffect, StatusBarTicker, SwirlyText, TextButton, TextEffects, TextTransitions,
                 ThoughtBubbles, Tooltips, TypewriterText, VerticalScroller>;

/// One effect, whichever it is, with everything that can be done with it without its window.
class AnyEffect
{
public:
    /// Of the first kind that these parameters are made as.
    explicit AnyEffect(EffectParameters parameters);

    /// A fresh effect of that kind, without what earlier ones left in the settings; nothing where
    /// there is none.
    static std::optional<AnyEffect> Fresh(EffectKind kind);

    const EffectParameters& Parameters() const { return m_parameters; }

    EffectKind Kind() const { return m_kind; }

    /// What is known of its fields, in the window's order.
    std::vector<FieldFacts> Fields() const;

    /// Calls `source` with each full path of a file that it holds, which may change it; with empty
    /// ones too.
    void ForEachSource(const std::function<void(Text&)>& source);

    /// Takes over the values of a draft's text; fields that it lacks stay.
    void ReadDraft(TextView draft, Secrets secrets = Secrets::Skipped);

    /// Takes over what its first block in a stretch of page text shows; false, with the effect as
    /// it was, when there is none or it is no block.
    bool ReadBlock(TextView text);

    /// The fields as a draft's text, without the secret ones.
    Text Draft() const;

    /// The number of its wizard's pages.
    int Pages() const;

    /// The first complaint on the pages that the author comes by, or nothing when the wizard may
    /// end.
    std::optional<Complaint> Check() const;

    /// Mends the fields as the wizard does when it ends. Expects that Check() gives nothing.
    void Tidy();

    /// What the effect puts into a page, with its files. Expects that Check() gives nothing and
    /// that Tidy() was called.
    EffectPayload Generate(const Surroundings& surroundings) const;

private:
    AnyEffect(EffectParameters parameters, EffectKind kind)
        : m_parameters(std::move(parameters)), m_kind(kind)
    {
    }

    EffectParameters m_parameters;
    EffectKind m_kind;
};

} // namespace orvane
