#include "core/catalogue.h"

#include "core/image_effect_rows.h"
#include "core/other_effect_rows.h"
#include "core/text_effect_rows.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

/// All pages together.
constexpr auto rows = [] {
    using namespace catalogue_rows;
    std::array<CatalogueRow,
               std::size(imageEffectRows) + std::size(textEffectRows) + std::size(otherEffectRows)>
        all;
    auto* end = std::ranges::copy(imageEffectRows, all.begin()).out;
    end = std::ranges::copy(textEffectRows, end).out;
    std::ranges::copy(otherEffectRows, end);
    std::ranges::sort(all, {}, &CatalogueRow::Kind);
    return all;
}();

// clang-format off
constexpr EffectCommand commands[] = {
    {"mnuAppletsAnimations", u"&Advanced Animator...", CataloguePage::ImageEffects, EffectKind::AdvancedAnimator},
    {"mnuAnimButton", u"Animated Bu&tton...", CataloguePage::ImageEffects, EffectKind::AnimatedButton},
    {"mnuAnimWiz", u"A&nimation Wizard...", CataloguePage::ImageEffects, EffectKind::AnimationWizard},
    {"mnuBBWiz", u"&Banner/Billboard Wizard...", CataloguePage::ImageEffects, EffectKind::BannerWizard},
    {"mnuAppletsDynaBut", u"&Dynamic Button...", CataloguePage::ImageEffects, EffectKind::DynamicButton},
    {"mnuFallingSnow", u"&Falling/Floating Images...", CataloguePage::ImageEffects, EffectKind::FallingImages},
    {"mnuImageEffects", u"&Image Effects...", CataloguePage::ImageEffects, EffectKind::ImageEffects},
    {"mnuImageFade", u"Image &Fade...", CataloguePage::ImageEffects, EffectKind::ImageFade},
    {"mnuImgRollover", u"Image &Rollover...", CataloguePage::ImageEffects, EffectKind::ImageRollover},
    {"mnuImageScroller", u"I&mage Scroller", CataloguePage::ImageEffects, EffectKind::ImageScroller},
    {"mnuImageTransitions", u"Image &Transitions...", CataloguePage::ImageEffects, EffectKind::TextTransitions},
    {"mnuMoreImageEffects", u"&More Image Effects...", CataloguePage::ImageEffects, EffectKind::MoreImageEffects},
    {"mnuCursorTrail", u"Mouse &Cursor Trail...", CataloguePage::ImageEffects, EffectKind::CursorTrail},
    {"mnuRandomImage", u"Random I&mage...", CataloguePage::ImageEffects, EffectKind::RandomImage},
    {"mnuSlideshow", u"&Slideshow...", CataloguePage::ImageEffects, EffectKind::Slideshow},
    {"mnuBubbles", u"Thought &Bubbles...", CataloguePage::ImageEffects, EffectKind::ThoughtBubbles},
    {"mnuAntiSpam", u"&AntiSpam Email Protector...", CataloguePage::TextEffects, EffectKind::AntiSpamLink},
    {"mnuFadeMsg", u"Fading &Message...", CataloguePage::TextEffects, EffectKind::FadingMessage},
    {"mnuFlashText", u"&Flashing Text...", CataloguePage::TextEffects, EffectKind::FlashingText},
    {"mnuFlyingText", u"Fl&ying Text...", CataloguePage::TextEffects, EffectKind::FlyingText},
    {"mnuNavTicker", u"&Navigator Ticker...", CataloguePage::TextEffects, EffectKind::NavigatorTicker},
    {"mnuRandomQuote", u"&Random Quote...", CataloguePage::TextEffects, EffectKind::RandomQuote},
    {"mnuShakeText", u"S&haking Text...", CataloguePage::TextEffects, EffectKind::ShakingText},
    {"mnuSmoothScroll", u"Sm&ooth Scrolling Text Ticker...", CataloguePage::TextEffects, EffectKind::SmoothScroll},
    {"mnuStatusBar", u"Status &Bar Text Ticker...", CataloguePage::TextEffects, EffectKind::StatusBarTicker},
    {"mnuAppletSwirly", u"&Swirly Text...", CataloguePage::TextEffects, EffectKind::SwirlyText},
    {"mnuTextButton", u"Te&xt Button...", CataloguePage::TextEffects, EffectKind::TextButton},
    {"mnuTextEffectsTextFX", u"T&ext Effects...", CataloguePage::TextEffects, EffectKind::TextEffects},
    {"mnuTextTransitions", u"&Text Transitions...", CataloguePage::TextEffects, EffectKind::TextTransitions},
    {"mnuTooltip", u"Toolt&ip...", CataloguePage::TextEffects, EffectKind::Tooltips},
    {"mnuAppletsTyper", u"T&ypewriter Text...", CataloguePage::TextEffects, EffectKind::TypewriterText},
    {"mnuVertScroller", u"&Vertical Scrolling Text...", CataloguePage::TextEffects, EffectKind::VerticalScroller},
    {"mnuOtherButton", u"&All-in-one Button...", CataloguePage::OtherEffects, EffectKind::AllInOneButton},
    {"mnuFade", u"Background Color &Fade-in/Fade-out...", CataloguePage::OtherEffects, EffectKind::BackgroundFade},
    {"mnuColorScrollbars", u"Color Sc&rollbars...", CataloguePage::OtherEffects, EffectKind::ColorScrollbars},
    {"mnuDayCalendar", u"&Day Calendar...", CataloguePage::OtherEffects, EffectKind::DayCalendar},
    {"mnuClock", u"Digital &Clock...", CataloguePage::OtherEffects, EffectKind::DigitalClock},
    {"mnuEarthquake", u"&Earthquake window...", CataloguePage::OtherEffects, EffectKind::Earthquake},
    {"mnuPageTransitions", u"Page &Transitions...", CataloguePage::OtherEffects, EffectKind::PageTransitions},
    {"mnuPassword", u"&Password Protection...", CataloguePage::OtherEffects, EffectKind::PasswordScript},
    {"mnuPersonalized", u"Personali&zed Web page...", CataloguePage::OtherEffects, EffectKind::Personalize},
    {"mnuPopupAlert", u"Pop&Up Alert box...", CataloguePage::OtherEffects, EffectKind::PopupAlert},
    {"mnuPopUpWindow", u"PopUp &Window...", CataloguePage::OtherEffects, EffectKind::PopupWindow},
    {"mnuPulldown", u"Pu&lldown Menu...", CataloguePage::OtherEffects, EffectKind::PulldownMenu},
    {"mnuGoogleSearch", u"Search Box...", CataloguePage::OtherEffects, EffectKind::SearchBox},
    {"mnuSoundFX", u"Sou&nd Effect...", CataloguePage::OtherEffects, EffectKind::Sound},
    {"mnuScrollingCredits", u"Sc&rolling Credits...", CataloguePage::OtherEffects, EffectKind::ScrollingCredits},
    {"mnuSlidingIMWindow", u"Sliding Instant Message Window...", CataloguePage::OtherEffects, EffectKind::SlidingMessage},
    {"mnuGoogleTranslate", u"Web Page Translator...", CataloguePage::OtherEffects, EffectKind::Translator},
};
// clang-format on

template <class Row, class Same>
const Row* FindIn(std::span<const Row> table, Same same)
{
    const auto row = std::find_if(table.begin(), table.end(), same);
    return row == table.end() ? nullptr : &*row;
}

/// The letters and digits of a name, in lower case; some titles end in "effect", which nobody
/// types.
Text LettersOf(TextView name)
{
    Text letters = ToLower(name);
    std::erase_if(letters, [](char16_t sign) {
        return !(sign >= u'a' && sign <= u'z') && !(sign >= u'0' && sign <= u'9');
    });
    constexpr TextView ending = u"effect";
    if (letters.ends_with(ending))
        letters.resize(letters.size() - ending.size());
    return letters;
}

} // namespace

std::span<const CatalogueRow> Catalogue()
{
    return rows;
}

const CatalogueRow* FindRow(EffectKind kind)
{
    return FindIn(Catalogue(), [&](const CatalogueRow& row) { return row.Kind == kind; });
}

const CatalogueRow& RowOf(EffectKind kind)
{
    static constexpr CatalogueRow none;
    const CatalogueRow* row = FindRow(kind);
    return row == nullptr ? none : *row;
}

const CatalogueRow* FindRowCalled(TextView name)
{
    const Text letters = LettersOf(name);
    for (const auto words : {&CatalogueRow::Title, &CatalogueRow::MarkerName})
        for (const bool hasButton : {true, false})
            if (const auto* row = FindIn<CatalogueRow>(rows, [&](const CatalogueRow& candidate) {
                    return candidate.HasButton == hasButton && !letters.empty() &&
                           LettersOf(candidate.*words) == letters;
                }))
                return row;
    return nullptr;
}

std::span<const EffectCommand> EffectCommands()
{
    return commands;
}

const EffectCommand* FindCommand(ControlName name)
{
    return FindIn(EffectCommands(), [&](const EffectCommand& row) { return row.Name == name; });
}

} // namespace orvane
