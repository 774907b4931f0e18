#include "core/catalogue_search.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

/// What else authors call an effect, or look for when they want it.
struct OtherWords
{
    EffectKind Kind;
    TextView Words;
};

// clang-format off
constexpr OtherWords otherWords[] = {
    {EffectKind::AdvancedAnimator, u"animated gif, frames, movie, cartoon, applet, sprite"},
    {EffectKind::AnimationWizard, u"animated gif, frames, movie, cartoon, applet"},
    {EffectKind::BannerWizard, u"advertisement, ads, rotator, carousel, applet"},
    {EffectKind::DigitalClock, u"watch, today, calendar, hour, timer"},
    {EffectKind::DynamicButton, u"rollover, hover, mouseover, swap image, navigation"},
    {EffectKind::BackgroundFade, u"colour, fade-in, fade-out, page background, transition"},
    {EffectKind::ImageEffects, u"picture, photo, water, mirror, waves, rotating cube, 3d, brightness, glow, hover"},
    {EffectKind::PasswordScript, u"login, log in, sign in, member area, secret, private, lock, gate, security"},
    {EffectKind::StatusBarTicker, u"marquee, scroller, running text, news, bottom line"},
    {EffectKind::SwirlyText, u"rainbow, colorful, colours, spin, rotate, applet"},
    {EffectKind::TypewriterText, u"typing, teletype, letter by letter, console, news, applet"},
    {EffectKind::SmoothScroll, u"marquee, scroller, running text, news, applet"},
    {EffectKind::FadingMessage, u"news, headlines, rotate, announcements, applet"},
    {EffectKind::NavigatorTicker, u"marquee, scroller, news, headlines, links, applet"},
    {EffectKind::PulldownMenu, u"dropdown, drop-down, jump menu, navigation, combo box, select, links"},
    {EffectKind::MoreImageEffects, u"picture, photo, wave, zoom, blur, expand, shrink, mosaic, filter"},
    {EffectKind::PopupAlert, u"pop-up, message box, dialog, warning, confirm, prompt, question, welcome"},
    {EffectKind::AnimatedButton, u"rollover, hover, mouseover, navigation"},
    {EffectKind::ImageRollover, u"mouseover, hover, swap image, thumbnail, gallery, navigation"},
    {EffectKind::Sound, u"music, audio, midi, wav, noise, background"},
    {EffectKind::ImageFade, u"gallery, photo, picture, crossfade, dissolve, carousel, applet"},
    {EffectKind::ScrollingCredits, u"film, end titles, marquee, roll"},
    {EffectKind::PageTransitions, u"wipe, dissolve, reveal, enter, leave"},
    {EffectKind::TextTransitions, u"wipe, dissolve, reveal, appear"},
    {EffectKind::PopupWindow, u"pop-up, new window, open, advertisement"},
    {EffectKind::TextEffects, u"zoom, bigger, animate"},
    {EffectKind::RandomImage, u"picture, photo, ads, rotator, picture of the day, shuffle"},
    {EffectKind::FallingImages, u"snow, rain, leaves, christmas, winter, hearts, balloons, picture"},
    {EffectKind::TextButton, u"rollover, hover, mouseover, navigation"},
    {EffectKind::Personalize, u"visitor, counter, cookie, welcome, greeting, hello"},
    {EffectKind::AllInOneButton, u"hyperlink, print, close, bookmark, favorites, favourites, navigation"},
    {EffectKind::RandomQuote, u"quotation, tip of the day, fortune, sayings, shuffle"},
    {EffectKind::Earthquake, u"shaking, quake, rumble, vibrate, tremble"},
    {EffectKind::DayCalendar, u"today, diary, clock"},
    {EffectKind::ColorScrollbars, u"colour, scroll bar"},
    {EffectKind::SlidingMessage, u"pop-up, chat, notification, slide in"},
    {EffectKind::SearchBox, u"find, search engine, look up, site search"},
    {EffectKind::Translator, u"translation, foreign, english, spanish, french, german"},
    {EffectKind::CursorTrail, u"pointer, follow, sparkles, stars, picture"},
    {EffectKind::FlashingText, u"blink, blinking"},
    {EffectKind::ShakingText, u"tremble, vibrate, wobble, nervous"},
    {EffectKind::AntiSpamLink, u"e-mail, mailto, contact, protect, junk, harvest"},
    {EffectKind::Slideshow, u"gallery, photo album, pictures, carousel, presentation"},
    {EffectKind::FlyingText, u"animate, fly in, letters"},
    {EffectKind::Tooltips, u"hint, balloon, hover, mouseover, tip, caption, help"},
    {EffectKind::ThoughtBubbles, u"speech, comic, balloon, cartoon, hover"},
    {EffectKind::VerticalScroller, u"marquee, ticker, headlines, announcements, scroll up, links"},
    {EffectKind::ImageScroller, u"gallery, marquee, photo, pictures, carousel"},
};
// clang-format on

bool IsOfWord(char16_t character)
{
    return character > 127 || (character >= u'0' && character <= u'9') ||
           (ToLower(character) >= u'a' && ToLower(character) <= u'z');
}

std::vector<TextView> WordsOf(TextView text)
{
    std::vector<TextView> words;
    for (auto from = text.begin(); from != text.end();) {
        from = std::find_if(from, text.end(), IsOfWord);
        const auto behind = std::find_if_not(from, text.end(), IsOfWord);
        if (from != behind)
            words.emplace_back(from, behind);
        from = behind;
    }
    return words;
}

TextView OtherWordsFor(EffectKind kind)
{
    const auto* row =
        std::ranges::find(std::begin(otherWords), std::end(otherWords), kind, &OtherWords::Kind);
    return row == std::end(otherWords) ? TextView() : row->Words;
}

/// How well an effect answers: behind how many of its texts each typed word has been met; one more
/// than there are when one never is.
std::size_t Rank(const CatalogueRow& row, std::vector<TextView> typed)
{
    const std::array texts = {row.Title, OtherWordsFor(row.Kind), row.Description};
    std::size_t rank = 0;
    for (; rank < texts.size() && !typed.empty(); ++rank)
        for (const TextView word : WordsOf(texts[rank]))
            std::erase_if(typed,
                          [&](TextView start) { return StartsWithIgnoringCase(word, start); });
    return typed.empty() ? rank : texts.size() + 1;
}

} // namespace

std::vector<const CatalogueRow*> SearchCatalogue(TextView typed)
{
    std::array<std::vector<const CatalogueRow*>, 5> byRank;
    const std::vector<TextView> words = WordsOf(typed);
    for (const CatalogueRow& row : Catalogue())
        if (row.HasButton)
            byRank[Rank(row, words)].push_back(&row);
    std::vector<const CatalogueRow*> found;
    for (const std::size_t rank : {1, 2, 3})
        found.insert(found.end(), byRank[rank].begin(), byRank[rank].end());
    return found;
}

} // namespace orvane
