#include "effects/applet/advanced_animator.h"
#include "effects/applet/image_effects.h"
#include "effects/applet/image_fade.h"
#include "effects/applet/image_properties.h"
#include "effects/applet/more_image_effects.h"
#include "effects/applet/typewriter_text.h"
#include "effects/page/all_in_one_button.h"
#include "effects/page/animation_wizard.h"
#include "effects/page/anti_spam_link.h"
#include "effects/page/color_scrollbars.h"
#include "effects/page/cursor_trail.h"
#include "effects/page/dynamic_button.h"
#include "effects/page/earthquake.h"
#include "effects/page/password_protection.h"
#include "effects/page/popup_alert.h"
#include "effects/page/popup_window.h"
#include "effects/page/pulldown_menu.h"
#include "effects/page/slideshow.h"
#include "effects/text/digital_clock.h"
#include "effects/text/smooth_scroll.h"
#include "effects/text/status_bar_ticker.h"
#include "effects/text/tooltips.h"
#include "effects/text/vertical_scroller.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// The hints as "field: sign", where the sign is the quote, "#" for a number that is none, or the
/// words themselves.
template <class Effect>
std::string Shown(const Effect& effect)
{
    std::string shown;
    for (const Hint& hint : HintsOf(effect)) {
        Text sign = hint.Words;
        if (sign == notANumber)
            sign = u"#";
        else if (sign.find(u"ends the text in the script") != Text::npos)
            sign = sign.find(u'"') != Text::npos ? u"\"" : u"'";
        shown += std::string(shown.empty() ? "" : ", ") + std::string(hint.Control) + ": " +
                 ToUtf8(sign);
    }
    return shown;
}

TEST(HintsTest, AreAtTheQuotesThatEndATextInTheScriptAndAtNoOthers)
{
    EXPECT_EQ(Shown(StatusBarTicker{u"it's \"new\""}), "txtStatusBarText: \"");
    EXPECT_EQ(Shown(StatusBarTicker{u"it's new"}), "");
    EXPECT_EQ(Shown(PopupAlert{.txtAlertText = u"it's \"\""}), "txtAlertText: \"");
    EXPECT_EQ(Shown(PopupWindow{.txtLinkItem = u"'\"", .txtWindowName = u"a'", .txtURL = u"\"'"}),
              "txtWindowName: ', txtURL: \"");
    EXPECT_EQ(Shown(DigitalClock{.cboFont = u"'Arial'", .cboFontSize = u"\""}),
              "cboFont: ', cboFontSize: \"");
    EXPECT_EQ(Shown(VerticalScroller{.Items = {{u"it's \"", u"\""}, {u"", u"b'"}}}), "lstLinks: '");
    EXPECT_EQ(HintsOf(ScrollerItem{u"it's", u"a'b"}).size(), 1u);
    EXPECT_EQ(Shown(PulldownMenu{.Items = {{u"'\"", u"'"}}, .cboTarget = u"\"it's"}),
              "cboTarget: '");
    EXPECT_EQ(Shown(AntiSpamLink{.Email = u"o'neil@a.b", .MailToText = u"'", .txtSubject = u"\""}),
              "Email: ', txtSubject: \"");
    EXPECT_EQ(Shown(AntiSpamLink{.Email = u"o'neil@a.b", .chkAntiSpam = false}), "");
    EXPECT_EQ(Shown(CursorTrail{u"/it's/a \"b\".gif"}), "txtImage: \"");
    EXPECT_EQ(Shown(CursorTrail{u"/it's/a.gif"}), "");
    EXPECT_EQ(Shown(DynamicButton{.DefaultImage = u"'", .ClickSound = u"\"", .LinkUrl = u"'\""}),
              "DefaultImage: ', ClickSound: \"");
    EXPECT_EQ(Shown(Slideshow{.Rows = {{.FileName = u"'.gif"}, {.FileName = u"\".gif"}}}),
              "List1: \"");
    AllInOneButton button{.txtButtonText = u"'\"",
                          .txtURL = u"a'",
                          .txtBookmarkURL = u"\"",
                          .txtBookmarkTitle = u"'"};
    for (const auto& [action, shown] : {std::pair(0, "txtURL: '"),
                                        {1, ""},
                                        {3, "txtURL: '"},
                                        {4, "txtBookmarkURL: \", txtBookmarkTitle: '"}}) {
        button.cboButtonAction = buttonActions[static_cast<std::size_t>(action)];
        EXPECT_EQ(Shown(button), shown);
    }
}

TEST(HintsTest, AreAtPasswordsThatTheirScriptCannotHoldOrLacks)
{
    PasswordProtection gate{.GatePassword = u"it's \"", .GateUrl = u"'\""};
    EXPECT_EQ(Shown(gate), "GatePassword: \", GateUrl: \"");
    gate.GatePassword.clear();
    EXPECT_EQ(Shown(gate), "GatePassword: Without a password here, visitors come in without one., "
                           "GateUrl: \"");
    gate.optPasswordType = PasswordType::Many;
    EXPECT_EQ(Shown(gate), "GateUrl: \"");
    EXPECT_EQ(Shown(PasswordProtection{.optScheme = PasswordScheme::Server,
                                       .LoginUsername = u"\"",
                                       .LoginPassword = u"it's \"",
                                       .LandingUrl = u"'",
                                       .CgiDirectory = u"\""}),
              "LoginUsername: \", LoginPassword: \", CgiDirectory: \"");
}

TEST(HintsTest, AreAtNumbersThatAreNone)
{
    const Text bad = u"30x";
    EXPECT_EQ(Shown(PopupWindow{.txtWidth = bad, .txtHeight = u"abc-3", .txtHorizLocation = u"-3"}),
              "txtWidth: #, txtHeight: #");
    EXPECT_EQ(Shown(DigitalClock{.cboFontSize = u"12pt", .txtPadding = bad}),
              "cboFontSize: #, txtPadding: #");
    for (const TextView padding : {u"", u"2px", u"1 2.5EM  3% 0", u"-1"})
        EXPECT_EQ(Shown(DigitalClock{.txtPadding = Text(padding)}), "") << ToUtf8(padding);
    EXPECT_EQ(Shown(VerticalScroller{.cboFontSize = bad, .txtWidth = bad, .txtPause = bad}),
              "cboFontSize: #, txtWidth: #, txtPause: #");
    EXPECT_EQ(Shown(Tooltips{.cboFontSize = bad, .txtHeight = bad}),
              "cboFontSize: #, txtHeight: #");
    EXPECT_EQ(Shown(ImageEffects{.ImageHeight = bad, .FrameCount = bad}),
              "ImageHeight: #, FrameCount: #");
    EXPECT_EQ(Shown(MoreImageEffects{.ImageWidth = bad, .LoopCount = bad}),
              "ImageWidth: #, LoopCount: #");
    EXPECT_EQ(Shown(MoreImageEffects{.LoopCount = u"Infinite"}), "");
    EXPECT_EQ(Shown(TypewriterText{.FontSize = bad, .AppletHeight = bad, .Cycles = u"10 times"}),
              "FontSize: #, AppletHeight: #");
    EXPECT_EQ(Shown(AdvancedAnimator{.AnimationWidth = bad, .LoopCount = u"ever"}),
              "Text20: #, Combo3: #");
    EXPECT_EQ(Shown(ImageProperties{.Pause = u"abc-3"}), "Text1: #");
    EXPECT_EQ(Shown(ImageProperties{.Pause = u"-2"}), "");
}

TEST(HintsTest, AreAtSecondsThatThePageCannotCarry)
{
    for (const TextView fitting : {u"", u"5", u"32", u"32.5", u"-32"})
        EXPECT_EQ(Shown(Slideshow{.txtSlideDuration = Text(fitting)}), "") << ToUtf8(fitting);
    for (const TextView tooLong : {u"33", u"32.6", u"-33", u"99999"})
        EXPECT_EQ(Shown(Slideshow{.txtSlideDuration = Text(tooLong)}),
                  "txtSlideDuration: The page's text carries 32 seconds at most.");
    EXPECT_EQ(Shown(Slideshow{.txtSlideDuration = u"5 s"}), "txtSlideDuration: #");
    const Text endless = u"2147484";
    EXPECT_NE(Shown(ImageFade{.FadePause = endless}), "");
    EXPECT_NE(Shown(MoreImageEffects{.PauseSeconds = endless}), "");
    EXPECT_NE(Shown(VerticalScroller{.txtPause = endless}), "");
    EXPECT_EQ(Shown(VerticalScroller{.txtPause = u"2147483"}), "");
}

TEST(HintsTest, AreAtQuakesThatComeAgainTooSoon)
{
    const std::string words =
        "txtAgainAfter: The page takes 5: more quakes can harm those who look at it.";
    for (const auto& [typed, hint, delivered] :
         {std::tuple(u"4.9", words, u"5"), {u"0", "", u"0"}, {u"5", "", u"5"}, {u"-1", "", u"0"}}) {
        Earthquake quake{.txtAgainAfter = typed};
        EXPECT_EQ(Shown(quake), hint);
        Tidy(quake);
        EXPECT_EQ(quake.txtAgainAfter, delivered);
    }
}

TEST(HintsTest, AreAtColorsThatAreHardToTellApart)
{
    const auto words = [](const std::string& contrast, const std::string& least) {
        return "The contrast of these two colors is " + contrast + " to 1.  From " + least +
               " to 1 on, everybody can tell them apart well.";
    };
    EXPECT_EQ(Shown(SmoothScroll{.Look = {.TextColor = u"#777"}, .BackColor = u"white"}),
              "cmdTextColor: " + words("4.47", "4.5"));
    EXPECT_EQ(Shown(SmoothScroll{.Look = {.TextColor = u"#777"}}), "");
    EXPECT_EQ(Shown(ColorScrollbars()), "");
    EXPECT_EQ(Shown(ColorScrollbars{.HandleColor = u"#949494", .TrackColor = u"#fff"}), "");
    EXPECT_EQ(Shown(ColorScrollbars{.HandleColor = u"#959595", .TrackColor = u"#fff"}),
              "cmdTrackColor: " + words("2.99", "3"));
    EXPECT_EQ(Shown(ColorScrollbars{.HoverColor = u"#dde6ee"}),
              "cmdHoverColor: " + words("1", "3"));
}

} // namespace
} // namespace orvane::testing
