#pragma once

#include <cstdint>

namespace orvane {

/// An effect. The numbers never change: the catalogue has their order, and an
/// effect's help topic is 100 plus its number.
enum class EffectKind : std::int32_t
{
    None = 0,
    AdvancedAnimator = 1,
    AnimationWizard = 2,
    BannerWizard = 3,
    DigitalClock = 4,
    DynamicButton = 5,
    BackgroundFade = 6,
    ImageEffects = 7,
    PasswordScript = 8,
    StatusBarTicker = 9,
    SwirlyText = 10,
    TypewriterText = 11,
    SmoothScroll = 12,
    FadingMessage = 13,
    NavigatorTicker = 14,
    PulldownMenu = 15,
    SoundReserved = 16,
    MoreImageEffects = 17,
    PopupAlert = 18,
    AnimatedButton = 19,
    ImageRollover = 20,
    Sound = 21,
    ImageFade = 22,
    ScrollingCredits = 23,
    PasswordServer = 24,
    PageTransitions = 25,
    TextTransitions = 26,
    PopupWindow = 27,
    TextEffects = 28,
    RandomImage = 29,
    FallingImages = 30,
    TextButton = 31,
    Personalize = 32,
    AllInOneButton = 33,
    RandomQuote = 34,
    Earthquake = 35,
    DayCalendar = 36,
    ColorScrollbars = 37,
    SlidingMessage = 38,
    SearchBox = 39,
    Translator = 40,
    CursorTrail = 43,
    FlashingText = 44,
    ShakingText = 45,
    AntiSpamLink = 46,
    Slideshow = 47,
    FlyingText = 48,
    Tooltips = 49,
    ThoughtBubbles = 50,
    VerticalScroller = 51,
    ImageScroller = 52,
};

} // namespace orvane
