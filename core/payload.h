#pragma once

#include "core/text.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// Which effect a payload holds. The numbers never change: the catalogue has their order, and an
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

inline constexpr TextView MakerSiteURL = u"http://www.varlo.example";
inline constexpr TextView ProductPageURL = u"http://www.varlo.example/orvane/";

/// The two comment lines at the top of generated script. The second has no line end: the template
/// in which they stand goes on with one.
inline constexpr TextView CreditBanner =
    u"<!-- Script written by Varlo Software - http://www.varlo.example -->\r\n"
    u"<!-- Created by Orvane software - http://www.varlo.example/orvane/ -->";

/// The files that must be copied beside the author's page. The same index in both arrays belongs to
/// one file, with at most 51 files; an empty name is an unused index.
struct RequiredFiles
{
    std::array<Text, 51> Names;   ///< as the page refers to them
    std::array<Text, 51> Sources; ///< full paths; empty where the source is not known
    bool operator==(const RequiredFiles&) const = default;
};

/// A file that an effect makes. It is written into the program's folder when the wizard ends, and
/// goes beside the page as a support file of that name.
struct MadeFile
{
    Text Name;
    std::string Bytes;
    bool IsSecret = false; ///< it holds a password, say, so that only its owner may read it
    bool operator==(const MadeFile&) const = default;
};

/// The generated code of one effect, with the files that it needs. Each Generate() gives a new one,
/// so that nothing of an earlier effect survives.
struct EffectPayload
{
    EffectKind Kind = EffectKind::None;
    Text HEADHTML;
    Text BODYHTML;
    Text OnLoadFunc; ///< name of the function that the BODY tag calls; empty for none
    Text OnLoadArgs; ///< parentheses included
    Text OnUnloadFunc;
    Text OnUnloadArgs; ///< parentheses included
    RequiredFiles Required;
    std::array<Text, 3> SupportFiles; ///< names of the effect's files in the program's folder
    std::vector<MadeFile> MadeFiles;  ///< those of them that the effect makes
    Text SavedHEAD;       ///< a copy of the effect's script or BODY code, kept in OrvaneCore
    Text SavedBODY;       ///< a copy of its BODY code, or that code with sample words
    bool IsBlock = false; ///< for today's browsers; needs the required files and no others
    bool operator==(const EffectPayload&) const = default;
};

/// A payload as the delivery wizard works with it: the code wrapped in its markers, and the BODY
/// tag's attributes.
struct FinishedPayload
{
    EffectPayload Effect; ///< HEADHTML and BODYHTML carry the markers
    Text BeginMarker;
    Text EndMarker;
    Text BODYAttribute;      ///< onLoad and onUnload as they stand in the BODY tag
    Text PreviewCode;        ///< HEAD and BODY code with a line end between them
    bool NeedsFiles = false; ///< files must be published with the page
    bool ScriptedHelp = false;
    bool ReplaceInBody = false;
    bool RunsToday = false; ///< the author wants the page script for today's browsers beside it
    bool operator==(const FinishedPayload&) const = default;
};

/// The payload with the markers, BODY attributes and flags that the catalogue has for its kind;
/// without markers and flags for a kind that is not in the catalogue.
FinishedPayload Finish(const EffectPayload& effect);

} // namespace orvane
