#include "core/todays_browsers.h"

namespace orvane {

namespace {

/// What is said of one effect.
struct Row
{
    EffectKind Kind;
    TextView Sentence;
};

constexpr TextView withScriptAlone =
    u"Today's browsers show this effect only with Orvane's page script.";
constexpr TextView withoutScript =
    u"Today's browsers show this effect as it is; it does not need Orvane's page script.";

constexpr Row rows[] = {
    {EffectKind::AdvancedAnimator,
     u"Today's browsers show this effect only with Orvane's page script, and play its sounds only "
     u"after the visitor's first click or key."},
    {EffectKind::DigitalClock,
     u"Today's browsers show this effect, but it keeps other effects on the Web page from starting "
     u"unless Orvane's page script is there."},
    {EffectKind::DynamicButton,
     u"Today's browsers change the picture, but play the sounds only with Orvane's page script, "
     u"after the visitor's first click or key."},
    {EffectKind::ImageEffects, withScriptAlone},
    {EffectKind::PasswordScript, withoutScript},
    {EffectKind::StatusBarTicker,
     u"Today's browsers show this effect only with Orvane's page script, in a strip at the foot of "
     u"the window."},
    {EffectKind::TypewriterText, withScriptAlone},
    {EffectKind::PulldownMenu, withoutScript},
    {EffectKind::MoreImageEffects, withScriptAlone},
    {EffectKind::PopupAlert, withoutScript},
    {EffectKind::ImageFade, withScriptAlone},
    {EffectKind::PasswordServer, withoutScript},
    {EffectKind::PopupWindow,
     u"Today's browsers block windows that open by themselves; with Orvane's page script the "
     u"visitor can open them by a click."},
    {EffectKind::AllInOneButton,
     u"Today's browsers let no button add a favorite or close a window; with Orvane's page script "
     u"it tells the visitor how to do so, and plays its sound."},
    {EffectKind::SearchBox, withoutScript},
    {EffectKind::Translator, withoutScript},
    {EffectKind::CursorTrail, withScriptAlone},
    {EffectKind::AntiSpamLink, withoutScript},
    {EffectKind::Slideshow,
     u"Today's browsers change the images without transitions, and its buttons load the Web page "
     u"anew, unless Orvane's page script is there."},
    {EffectKind::Tooltips,
     u"Today's browsers show tooltips to the mouse, out of place once the Web page is scrolled; "
     u"with Orvane's page script they are in place, and the keyboard and touch bring them up too."},
    {EffectKind::VerticalScroller,
     u"Today's browsers move this text only on Web pages without a doctype; with Orvane's page "
     u"script it moves on all of them, and the visitor can stop it."},
};

} // namespace

TextView InTodaysBrowsers(EffectKind kind)
{
    for (const Row& row : rows)
        if (row.Kind == kind)
            return row.Sentence;
    return {};
}

bool GainsByPageScript(EffectKind kind)
{
    return InTodaysBrowsers(kind) != withoutScript;
}

} // namespace orvane
