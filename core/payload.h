#pragma once

#include "core/text.h"

#include <array>
#include <cstdint>

namespace orvane {

/// Which effect a payload holds; the numbers stand in pages' history and never change.
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

inline constexpr TextView MakerSiteURL = u"http://www.varlo.example";
inline constexpr TextView ProductPageURL = u"http://www.varlo.example/orvane/";

/// The two comment lines at the top of generated script; the template that holds them ends the
/// second.
inline constexpr TextView CreditBanner =
    u"<!-- Script written by Varlo Software - http://www.varlo.example -->\r\n"
    u"<!-- Created by Orvane software - http://www.varlo.example/orvane/ -->";

/// The author's own files that must lie beside the page: name and full source path at each index.
struct RequiredFiles
{
    std::array<Text, 51> Names;
    std::array<Text, 51> Sources; ///< empty where the source is not known
    bool operator==(const RequiredFiles&) const = default;
};

/// The generated code of one effect, with the files that it needs. A generator sets every slot, so
/// that nothing of an earlier effect survives.
struct EffectPayload
{
    EffectKind Kind = EffectKind::None;
    Text HEADHTML;
    Text BODYHTML;
    Text OnLoadFunc;
    Text OnLoadArgs; ///< parentheses included
    Text OnUnloadFunc;
    Text OnUnloadArgs; ///< parentheses included
    RequiredFiles Required;
    std::array<Text, 3> SupportFiles; ///< class files that lie in the program's folder
    Text SavedHEAD;                   ///< the wizard's own copies of its code
    Text SavedBODY;
    bool operator==(const EffectPayload&) const = default;
};

/// A payload as the delivery wizard works with it: the code wrapped in its markers, and the BODY
/// tag's attributes.
struct FinishedPayload
{
    EffectPayload Effect; ///< HEADHTML and BODYHTML carry the markers
    Text BeginMarker;
    Text EndMarker;
    Text BODYAttribute;
    Text PreviewCode;
    bool NeedsFiles = false;
    bool ScriptedHelp = false;
    bool ReplaceInBody = false;
    bool RunsToday = false; ///< the author wants the page script for today's browsers beside it
    bool operator==(const FinishedPayload&) const = default;
};

/// The payload with markers, BODY attributes and flags of its kind.
FinishedPayload Finish(const EffectPayload& effect);

} // namespace orvane
