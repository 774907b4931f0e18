#pragma once

#include "core/catalogue.h"
#include "core/catalogue_words.h"

namespace orvane::catalogue_rows {

/// What the preview page says under a sound.
inline constexpr TextView soundAgain = u"<br><br><br>Reload this Web page to play the sound again.";

/// The effects of the page "Other Special Effects", in the order of their numbers.
inline constexpr CatalogueRow otherEffectRows[] = {
    {
        .Kind = EffectKind::DigitalClock,
        .MenuCommand = "mnuClock",
        .Picture = u"clock",
        .Title = u"Digital Clock",
        .Description = u"Create a working clock on your Web page that tells the date and time.",
        .OtherWords = u"watch, today, calendar, hour, timer",
        .InTodaysBrowsers =
            u"Today's browsers show this effect, but it keeps other effects on the Web page from "
            u"starting unless Orvane's page script is there.",
        .Form = "frmDateTime",
        .MarkerName = u"DigitalClock",
    },
    {
        .Kind = EffectKind::BackgroundFade,
        .MenuCommand = "mnuFade",
        .Picture = u"fade",
        .Title = u"Background Color Fading effect",
        .Description =
            u"Fades the Web page background from one color to another color.  This effect can be "
            u"set to occur when the Web page loads and exits.",
        .OtherWords = u"colour, fade-in, fade-out, page background, transition",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "Fade",
        .MarkerName = u"Color Fade",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::PasswordScript,
        .MenuCommand = "mnuPassword",
        .Picture = u"password",
        .Title = u"Password Protection",
        .Description =
            u"Protect your Web pages with a password so only people with a password can see it.",
        .OtherWords = u"login, log in, sign in, member area, secret, private, lock, gate, security",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "Password",
        .MarkerName = u"Password",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::PulldownMenu,
        .MenuCommand = "mnuPulldown",
        .Picture = u"pulldown",
        .Title = u"Pulldown Menu",
        .Description =
            u"Create a Pulldown menu that allows you to pick a selection and then jump to the Web "
            u"page by clicking a button.",
        .OtherWords = u"dropdown, drop-down, jump menu, navigation, combo box, select, links",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "Pulldown",
        .MarkerName = u"Pulldown Menu",
    },
    {
        .Kind = EffectKind::SoundReserved,
        .MenuCommand = "mnuSoundFX",
        .Picture = u"sound_fx",
        .Title = u"Sound Effect",
        .Description =
            u"Use this special effect to have your Web page play a sound file when it loads and a "
            u"different sound file when the user exits the Web page.",
        .Form = "Sound",
        .MarkerName = u"Sound",
        .Preview = {.After = soundAgain},
        .HasButton = false,
    },
    {
        .Kind = EffectKind::PopupAlert,
        .MenuCommand = "mnuPopupAlert",
        .Picture = u"popup_alert",
        .Title = u"Popup Alert Box",
        .Description =
            u"Create a Popup Alert box that pops up and gives the user a message when they load "
            u"your Web page.",
        .OtherWords = u"pop-up, message box, dialog, warning, confirm, prompt, question, welcome",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "PopupAlert",
        .MarkerName = u"Popup Alert",
        .Preview = {.After =
                        u"<br><br><br>Reload this Web page to display the PopupAlert box again."},
    },
    {
        .Kind = EffectKind::Sound,
        .MenuCommand = "mnuSoundFX",
        .Picture = u"sound_fx",
        .Title = u"Sound Effect",
        .Description =
            u"Use this special effect to have your Web page play a sound file when it loads and a "
            u"different sound file when the user exits the Web page.",
        .OtherWords = u"music, audio, midi, wav, noise, background",
        .InTodaysBrowsers =
            u"Runs in today's browsers by itself; most of them play the sound only after the "
            u"visitor's first click or key.",
        .RunsByItself = true,
        .Form = "Sound",
        .MarkerName = u"Sound",
        .Files = FilesNeeded::Always,
        .ScriptedHelp = true,
        .ReplaceInBody = true,
        .Preview = {.After = soundAgain},
    },
    {
        .Kind = EffectKind::ScrollingCredits,
        .MenuCommand = "mnuScrollingCredits",
        .Picture = u"scrolling_credits",
        .Title = u"Scrolling Credits",
        .Description = u"Create a Web page that scrolls like the credits at the end of a movie.",
        .OtherWords = u"film, movie, end titles, marquee, roll, scroll up",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "Credits",
        .MarkerName = u"Scrolling Credits",
        .ScriptedHelp = true,
        .Preview =
            {.After =
                 u"<br><br><br>We've added a few lines of text to demonstrate the scrolling "
                 u"credit effect<BR><BR><BR><BR><BR><BR>"
                 u"This text should be "
                 u"scrolling<BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR>"
                 u"The End.<HR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR>.\r\n\r\n</FONT>"},
    },
    {
        .Kind = EffectKind::PasswordServer,
        .MenuCommand = "mnuPassword",
        .Picture = u"password",
        .Title = u"Password Protection",
        .Description =
            u"Protect your Web pages with a password so only people with a password can see it.",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "Password",
        .MarkerName = u"CGI Password",
        .Files = FilesNeeded::Always,
        .Uploads = {u"password.cgi"},
        .HasButton = false,
    },
    {
        .Kind = EffectKind::PageTransitions,
        .MenuCommand = "mnuPageTransitions",
        .Picture = u"page_transitions",
        .Title = u"IE Web Page Transitions",
        .Description =
            u"Choose from 24 different Web page transitions that will dazzle you when you load "
            u"and exit your Web page.",
        .OtherWords = u"wipe, dissolve, reveal, enter, leave",
        .InTodaysBrowsers =
            u"Runs in today's browsers by itself: those that have page transitions show them, the "
            u"others a plain cover.",
        .RunsByItself = true,
        .Form = "PageTransitions",
        .MarkerName = u"Page Transitions",
        .OtherPages = u"A transition shows only between two pages that both have it: put it into "
                      u"the pages that link to this one or that it links to, as well.",
        .ScriptedHelp = true,
        .Preview =
            {.After =
                 u"This effect will only display correctly when loading from another Web "
                 u"page.  The Orvane Preview does not display it correctly.  "
                 u"<ol align=left><li>Click the <b>Preview in Browser</b> button to open a "
                 u"browser window."
                 u"<li>Open any Web page in your Web browser."
                 u"<li>Hit the browser's back button to see the Page Transition special effect "
                 u"properly.</ol>"},
        .BlockPreview =
            PreviewWords{
                .After = u"<p>A page transition shows when a visitor goes from one page to another "
                         u"and both have it, so this page alone does not show it.  Click the "
                         u"<b>Refresh</b> button to see how the page comes in browsers that have "
                         u"no page transitions.</p>"},
    },
    {
        .Kind = EffectKind::PopupWindow,
        .MenuCommand = "mnuPopUpWindow",
        .Picture = u"pop_up_window",
        .Title = u"PopUp Window",
        .Description =
            u"Create a Popup Window that pops up and displays a Web page of your choice when a "
            u"user clicks on a link, image or when the Web page loads/exits.",
        .OtherWords = u"pop-up, new window, open, advertisement",
        .InTodaysBrowsers =
            u"Today's browsers block windows that open by themselves; with Orvane's page script "
            u"the visitor can open them by a click.",
        .Form = "PopUpWindow",
        .MarkerName = u"Popup Window",
        .Files = FilesNeeded::Always,
        .Uploads = {noRequiredFiles},
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::Personalize,
        .MenuCommand = "mnuPersonalized",
        .Picture = u"personalized",
        .Title = u"Personalize your Web page",
        .Description =
            u"Make your Web page greet visitors with their names or personalized greetings like "
            u"'Hello, Jim!', display how many times the user has visited and the date/time of "
            u"their last visit.",
        .OtherWords = u"visitor, counter, cookie, welcome, greeting, hello, name",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmPersonalize",
        .MarkerName = u"Personalize",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::AllInOneButton,
        .MenuCommand = "mnuOtherButton",
        .Picture = u"other_button",
        .Title = u"All-in-One Button",
        .Description =
            u"Create a button, link or image that links to another Web page, closes the current "
            u"browser window or prints the current Web page.",
        .OtherWords = u"hyperlink, print, close, bookmark, favorites, favourites, navigation",
        .InTodaysBrowsers =
            u"Today's browsers let no button add a favorite or close a window; with Orvane's page "
            u"script it tells the visitor how to do so, and plays its sound.",
        .Form = "frmButton",
        .MarkerName = u"All-in-One Button",
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::Earthquake,
        .MenuCommand = "mnuEarthquake",
        .Picture = u"earthquake",
        .Title = u"Browser Window Earthquake",
        .Description =
            u"Make your browser window shake like an earthquake!  Great for grabbing people's "
            u"attention when used as an advertisment window.",
        .OtherWords = u"shaking, quake, rumble, vibrate, tremble",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmEarthquake",
        .MarkerName = u"Browser Window Earthquake",
        .ScriptedHelp = true,
        .Preview =
            {.PaneHead = u"<script>function varlo_quake(){}</script>",
             .PaneAfter =
                 u"\r\nThis special effect cannot be previewed in Orvane's built-in "
                 u"Previewer.  Click the 'Preview in Browser' button to preview it correctly."},
        .BlockPreview =
            PreviewWords{
                .After =
                    u"<p>Click the <b>Refresh</b> button to see an earthquake on arrival again.  "
                    u"(This text will not appear in your special effect).</p>"},
    },
    {
        .Kind = EffectKind::DayCalendar,
        .MenuCommand = "mnuDayCalendar",
        .Picture = u"day_calendar",
        .Title = u"Day Calendar",
        .Description =
            u"Place a Day Calendar on your Web page to display the current month, day and date.",
        .OtherWords = u"today, diary, clock",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmDayCalendar",
        .MarkerName = u"Day Calendar",
        .ReplaceInBody = true,
    },
    {
        .Kind = EffectKind::ColorScrollbars,
        .MenuCommand = "mnuColorScrollbars",
        .Picture = u"color_scrollbars",
        .Title = u"Color Scrollbars",
        .Description =
            u"Create colorful browser scrollbars that match the colors or theme of your Web pages.",
        .OtherWords = u"colour, scroll bar, slider, handle, thumb, track",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmColorScrollbar",
        .MarkerName = u"Color Scrollbars",
        .Preview =
            {.After =
                 u"<img src='' width=600 height=1><br>This is a preview of the Color "
                 u"Scrollbars.  Color scrollbars will only appear in Internet Explorer 5.5 and "
                 u"above."},
        .BlockPreview =
            PreviewWords{
                .After =
                    u"<p align=left>This page is larger than its window, so that its scrollbars "
                    u"show.  Browsers that show scrollbars only while the page moves have no "
                    u"colors for them.</p><div style=\"width:200vw;height:200vh\"></div>"},
    },
    {
        .Kind = EffectKind::SlidingMessage,
        .MenuCommand = "mnuSlidingIMWindow",
        .Picture = u"sliding_im_window",
        .Title = u"Sliding Instant Message Window",
        .Description =
            u"Create a sliding instant message popup window to display a message that links to "
            u"another Web page!  Behaves just like an Instant Messenger window!",
        .OtherWords = u"pop-up, chat, notification, slide in",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmSlidingIMWindow",
        .MarkerName = u"Sliding Instant Message Window",
        .ScriptedHelp = true,
        .Preview =
            {.After = u"This is a preview of the Sliding Instant Message Window.  The window will "
                      u"slide into view from the lower right-hand corner of your screen."},
        .BlockPreview =
            PreviewWords{
                .After = u"<p>The Sliding Instant Message Window slides into its corner of this "
                         u"page.  (This text will not appear in your special effect).</p>"},
    },
    {
        .Kind = EffectKind::SearchBox,
        .MenuCommand = "mnuGoogleSearch",
        .Picture = u"google_search",
        .Title = u"Search Box",
        .Description =
            u"Add a Google search box to your Web pages so anyone can search the Web from your "
            u"page!  Or search a specific Web site of your choice!",
        .OtherWords = u"find, search engine, look up, site search",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "frmGoogle",
        .MarkerName = u"Google Search Box",
        .Files = FilesNeeded::Always,
    },
    {
        .Kind = EffectKind::Translator,
        .MenuCommand = "mnuGoogleTranslate",
        .Picture = u"google_translate",
        .Title = u"Web Page Translator",
        .Description = u"Translate your Web pages to any language with this special effect!",
        .OtherWords = u"translation, foreign, english, spanish, french, german",
        .InTodaysBrowsers = withoutScript,
        .RunsByItself = true,
        .Form = "frmGoogle",
        .MarkerName = u"Google Translate Your Web Page",
        .Files = FilesNeeded::Always,
    },
};

} // namespace orvane::catalogue_rows
