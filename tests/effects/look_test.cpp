#include "effects/applet/image_effects.h"
#include "effects/applet/more_image_effects.h"
#include "effects/applet/typewriter_text.h"
#include "effects/page/all_in_one_button.h"
#include "effects/page/password_protection.h"
#include "effects/page/popup_alert.h"
#include "effects/page/popup_window.h"
#include "effects/page/search_box.h"
#include "effects/text/digital_clock.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// The controls that the look shows or enables, in its order; "*" marks those filled by Browse.
template <class Effect>
std::string Open(const Effect& effect)
{
    std::string names;
    for (const ControlLook& part : LookOf(effect)) {
        if (part.IsShown.value_or(false) || part.IsEnabled.value_or(false))
            names += std::string(part.Control) + " ";
        if (part.HoldsFile.value_or(false))
            names += "* ";
    }
    return names;
}

/// The words that the look gives a control; empty when it leaves them alone.
template <class Effect>
TextView WordsOf(const Effect& effect, ControlName name)
{
    for (const ControlLook& part : LookOf(effect))
        if (part.Control == name)
            return part.Words.value_or(part.WordsRight.value_or(u""));
    return {};
}

TEST(LookTest, ShowsTheRowsThatTheChoiceNeeds)
{
    ImageEffects image{.chkGradual = true};
    const auto rows = [&](TextView effect, int size) {
        image.EffectPicker = effect;
        image.SizeSlider = size;
        return Open(image);
    };
    const std::string frame = "frameProperties ";
    EXPECT_EQ(Open(image), "");
    EXPECT_EQ(rows(u"Lake Reflection", 125), frame + "LinkOrColor TargetFrame ");
    EXPECT_EQ(rows(u"Image Cube", 125), frame + "ColorSwatch SizeSlider RotationSlider ");
    EXPECT_EQ(rows(u"Image Ripple", 125), frame + "FrameCount SizeSlider ");
    EXPECT_EQ(rows(u"Image Brighten", 15), frame + "LinkOrColor chkGradual SizeSlider ");
    EXPECT_EQ(rows(u"Image Brighten", 16), frame + "LinkOrColor chkGradual ");
    AllInOneButton button{.optButtonType = ButtonType::Image};
    for (const auto& [action, boxes] :
         {std::pair(0, "* cmdBrowseForImage txtURL "),
          {1, "* cmdBrowseForImage "},
          {3, "* cmdBrowseForImage txtURL * "},
          {4, "* cmdBrowseForImage txtBookmarkURL txtBookmarkTitle "}}) {
        button.cboButtonAction = buttonActions[static_cast<std::size_t>(action)];
        EXPECT_EQ(Open(button), boxes);
    }
    EXPECT_EQ(Open(PopupWindow{}), "");
    EXPECT_EQ(Open(PopupWindow{.optWhenToAppear = WhenToAppear::OnHyperlink}),
              "frameLinkSettings ");
    EXPECT_EQ(Open(PopupWindow{.optWhenToAppear = WhenToAppear::OnImage}),
              "frameLinkSettings * cmdBrowseForImage ");
    EXPECT_EQ(Open(PasswordProtection{}), "GatePassword ");
    EXPECT_EQ(
        Open(PasswordProtection{.optPasswordType = PasswordType::Many, .ChangeSettings = true}),
        "CgiDirectory PerlPath ");
    EXPECT_EQ(Open(TypewriterText{}), "TypedText ");
    EXPECT_EQ(Open(TypewriterText{.ReadFromFile = true}), "TextFile ");
    EXPECT_EQ(Open(SearchBox{.optSearch = SearchPlace::Site}), "frameSearch txtURL ");
    EXPECT_EQ(Open(SearchBox{.Mode = Text(translateMode)}), "frameTranslate ");
    EXPECT_EQ(Open(DigitalClock{.optDateTime = ClockContent::Time}), "");
}

TEST(LookTest, PauseAndEdgeComeWithTheLoopsAndTheEffect)
{
    EXPECT_EQ(Open(MoreImageEffects{}), "spaceAbove StartEdge ");
    for (const auto& [effect, loops, rows] :
         {std::tuple(u"Shutter in", u"1", ""),
          {u"Shutter in", u"3", "PauseSeconds "},
          {u"Expand & Shrink", u"1", "StartEdge "},
          {u"Slide-in & Slide-out", u"1", "PauseSeconds StartEdge "},
          {u"Shrink", u"1.5", "PauseSeconds StartEdge "},
          {u"Shrink", u"Infinite", "PauseSeconds StartEdge "}}) {
        const MoreImageEffects effects{.EffectPicker = effect, .LoopCount = loops};
        EXPECT_EQ(Open(effects), std::string("frameProperties frameBehavior ") + rows);
        EXPECT_EQ(WordsOf(effects, "LoopCount"), TextView(loops) == u"1" ? u"time" : u"times");
    }
}

TEST(LookTest, GivesTheWordsOfTheChoice)
{
    EXPECT_EQ(WordsOf(ImageEffects{.EffectPicker = u"Image Cube"}, "ImageWidth"), u"Applet Width:");
    EXPECT_EQ(WordsOf(ImageEffects{.EffectPicker = u"Image Ripple"}, "SizeSlider"),
              u"Ripple size:");
    EXPECT_EQ(WordsOf(PopupWindow{}, "txtLinkItem"), u"") << "those before";
    EXPECT_EQ(WordsOf(AllInOneButton{.optButtonType = ButtonType::Image}, "txtButtonText"),
              u"Image filename:");
    EXPECT_TRUE(WordsOf(PasswordProtection{}, "lblDescription").starts_with(u"JavaScript"));
    EXPECT_EQ(WordsOf(PasswordProtection{.optPasswordType = PasswordType::Many}, "GateUrl"),
              u"URL of Web page to display when user types in password:");
    EXPECT_EQ(WordsOf(PopupAlert{u"Input Prompt box"}, "lblAlertTypeDesc"),
              u"Allows the user to input text into the pop-up box");
}

} // namespace
} // namespace orvane::testing
