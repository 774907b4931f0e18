#pragma once

#include "core/catalogue.h"
#include "core/catalogue_words.h"

namespace orvane::catalogue_rows {

/// The effects of the page "Text Effects", in the order of their numbers.
inline constexpr CatalogueRow textEffectRows[] = {
    {
        .Kind = EffectKind::StatusBarTicker,
        .MenuCommand = "mnuStatusBar",
        .Picture = u"status_bar",
        .Title = u"Status Bar Text Ticker",
        .Description = u"Create text that scrolls in the Web browser's status bar.",
        .OtherWords = u"marquee, scroller, running text, news, bottom line",
        .InTodaysBrowsers =
            u"Today's browsers show this effect only with Orvane's page script, in a strip at the "
            u"foot of the window.",
        .Form = "StatusBar",
        .MarkerName = u"Status Bar Scroller",
        .ScriptedHelp = true,
        .ShowsInStatusLine = true,
        .Preview = {.After = u"\r\n<br><br><br>This special effect cannot be previewed in Orvane's "
                             u"built-in Previewer."},
    },
    {
        .Kind = EffectKind::SwirlyText,
        .MenuCommand = "mnuAppletSwirly",
        .Picture = u"applet_swirly",
        .Title = u"Swirly Text effect",
        .Description = u"Create text that swirls in different colors.",
        .OtherWords = u"rainbow, colorful, colours, gradient, spin, rotate, applet",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "Swirly",
        .MarkerName = u"Color Swirl",
        .Files = FilesNeeded::Always,
        .Uploads = {u"ColorSwirl.Class"},
    },
    {
        .Kind = EffectKind::TypewriterText,
        .MenuCommand = "mnuAppletsTyper",
        .Picture = u"applets_typer",
        .Title = u"Typewriter Text",
        .Description =
            u"Create text that is typed onto your Web page one letter at a time - like using a "
            u"typewriter.",
        .OtherWords = u"typing, teletype, letter by letter, console, news, applet",
        .InTodaysBrowsers = withScriptAlone,
        .Form = "Typer",
        .MarkerName = u"Typewriter",
        .Files = FilesNeeded::Always,
        .Uploads = {u"Typewriter9.class", u"AudioLoader3.class", u"CoolTool3.class"},
    },
    {
        .Kind = EffectKind::SmoothScroll,
        .MenuCommand = "mnuSmoothScroll",
        .Picture = u"smooth_scroll",
        .Title = u"Smooth Scrolling Text Ticker",
        .Description = u"Create text that scrolls smoothly across your Web page.",
        .OtherWords = u"marquee, scroller, running text, news, headlines, links, applet",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "SmoothScroll",
        .MarkerName = u"Smooth Scroller",
        .Files = FilesNeeded::Always,
        .UploadsSupportFiles = true,
    },
    {
        .Kind = EffectKind::FadingMessage,
        .MenuCommand = "mnuFadeMsg",
        .Picture = u"fade_msg",
        .Title = u"Fading Message effect",
        .Description =
            u"Create a text message slideshow that fades in and out from one message to the next.",
        .OtherWords = u"news, headlines, rotate, announcements, crossfade, links, applet",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "FadeMsg",
        .MarkerName = u"Fading Text",
        .Files = FilesNeeded::Always,
        .Uploads = {u"FadeText.class"},
    },
    {
        .Kind = EffectKind::NavigatorTicker,
        .MenuCommand = "mnuNavTicker",
        .Picture = u"nav_ticker",
        .Title = u"Navigator Ticker",
        .Description =
            u"Create a colorful, scrolling text ticker that you can link to different Web pages.",
        .OtherWords = u"marquee, scroller, running text, news, headlines, links, menu, applet",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "NavTicker",
        .MarkerName = u"Navigator Ticker",
        .Files = FilesNeeded::Always,
        .Uploads = {u"NavigatorTicker20.class"},
    },
    {
        .Kind = EffectKind::TextTransitions,
        .MenuCommand = "mnuTextTransitions",
        .Picture = u"text_transitions",
        .Title = u"IE Text Transitions",
        .Description = u"Choose from 24 different transitions to create wild text special effects.",
        .OtherWords =
            u"wipe, dissolve, reveal, appear, blinds, image transitions, slideshow, pictures",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "TextTransitions",
        .MarkerName = u"Text Transitions",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::TextEffects,
        .MenuCommand = "mnuTextEffectsTextFX",
        .Picture = u"text_effects_text_fx",
        .Title = u"IE Text Effects",
        .Description = u"Apply Grow and Stretch special effects to your text!",
        .OtherWords = u"zoom, bigger, smaller, shrink, pulse, animate",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "TextEffects",
        .MarkerName = u"Text Effects",
        .ScriptedHelp = true,
        .Preview = {.AboveBanner = u"<br><br><br><br><br>"},
    },
    {
        .Kind = EffectKind::TextButton,
        .MenuCommand = "mnuTextButton",
        .Picture = u"text_button",
        .Title = u"Text Button",
        .Description =
            u"Create colorful text buttons that link to other Web pages!  The text changes when "
            u"the mouse is moved over the button.",
        .OtherWords = u"rollover, hover, mouseover, navigation, link",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmTextButton",
        .MarkerName = u"Text Button",
        .Files = FilesNeeded::Always,
        .Uploads = {u"ButtonPLUS3.class"},
    },
    {
        .Kind = EffectKind::RandomQuote,
        .MenuCommand = "mnuRandomQuote",
        .Picture = u"random_quote",
        .Title = u"Random Quote",
        .Description = u"Make your Web page display random text or quotes of your choice.",
        .OtherWords = u"quotation, tip of the day, fortune, sayings, shuffle, testimonials",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmRandom",
        .MarkerName = u"Random Quote",
        .ReplaceInBody = true,
        .Preview = {.Before = refreshToSee},
    },
    {
        .Kind = EffectKind::FlashingText,
        .MenuCommand = "mnuFlashText",
        .Picture = u"flash_text",
        .Title = u"Flashing Text",
        .Description = u"Make your text flash with different text colors and background colors!",
        .OtherWords = u"blink, blinking, highlight",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmFlashText",
        .MarkerName = u"Flashing Text",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::ShakingText,
        .MenuCommand = "mnuShakeText",
        .Picture = u"shake_text",
        .Title = u"Shaking Text",
        .Description =
            u"Make your text shake back and forth to make it stand out on your Web page!",
        .OtherWords = u"tremble, vibrate, wobble, nervous",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmFlashText",
        .MarkerName = u"Shaking Text",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::AntiSpamLink,
        .MenuCommand = "mnuAntiSpam",
        .Picture = u"anti_spam",
        .Title = u"Anti-Spam Email Link",
        .Description =
            u"Create an email link for your Web page that hides your email address from spammers "
            u"who try to steal it from your Web page.",
        .OtherWords = u"e-mail, mailto, contact, protect, junk, harvest",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "frmMailTo",
        .MarkerName = u"AntiSpam Email Protection",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::FlyingText,
        .MenuCommand = "mnuFlyingText",
        .Picture = u"flying_text",
        .Title = u"Flying Text",
        .Description = u"Create text that flys onto your Web page one letter at a time!",
        .OtherWords = u"animate, fly in, letters, letter by letter, spiral, arc",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmFlyingText",
        .MarkerName = u"Flying Text",
        .Files = FilesNeeded::Always,
        .Uploads = {u"nameMotion.swf"},
    },
    {
        .Kind = EffectKind::Tooltips,
        .MenuCommand = "mnuTooltip",
        .Picture = u"tooltip",
        .Title = u"Tooltips",
        .Description =
            u"Create tooltips that pop up when you move the mouse over an image or text on your "
            u"Web page!",
        .OtherWords = u"hint, balloon, hover, mouseover, tip, caption, help",
        .InTodaysBrowsers =
            u"Today's browsers show tooltips to the mouse, out of place once the Web page is "
            u"scrolled; with Orvane's page script they are in place, and the keyboard and touch "
            u"bring them up too.",
        .Form = "frmTooltip",
        .MarkerName = u"Tooltip",
        .Files = FilesNeeded::WhenListed,
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::VerticalScroller,
        .MenuCommand = "mnuVertScroller",
        .Picture = u"vert_scroller",
        .Title = u"Vertical Scrolling Text",
        .Description =
            u"Vertically scroll messages like a news ticker.  You can link each message to "
            u"different Web pages.",
        .OtherWords = u"marquee, ticker, headlines, announcements, scroll up, links",
        .InTodaysBrowsers =
            u"Today's browsers move this text only on Web pages without a doctype; with Orvane's "
            u"page script it moves on all of them, and the visitor can stop it.",
        .Form = "frmVertScroller",
        .MarkerName = u"Vertical Scrolling Text",
        .ScriptedHelp = true,
    },
};

} // namespace orvane::catalogue_rows
