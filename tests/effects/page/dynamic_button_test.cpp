#include "effects/page/dynamic_button.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

DynamicButton FullButton()
{
    return {.DefaultImage = u"up.gif",
            .OverImage = u"over.gif",
            .OverSound = u"hover.wav",
            .ClickImage = u"down.gif",
            .ClickSound = u"click.wav",
            .LinkUrl = u"http://www.example.com/next.html",
            .LinkTarget = u"_blank"};
}

TEST(DynamicButtonTest, KeepsTheSourcesOfTheFilesThatItStillNames)
{
    DynamicButton button = FullButton();
    button.Required.RequiredFileSources = {
        u"/p/up.gif", u"/p/over.gif", u"/s/other.wav", {}, u"/s/click.wav"};
    EXPECT_EQ(Generate(button, {}).Required.RequiredFileSources,
              (RequiredFiles{
                  .RequiredFileSources = {u"/p/up.gif", u"/p/over.gif", {}, {}, u"/s/click.wav"}}
                   .RequiredFileSources));
}

TEST(DynamicButtonTest, NamesTheSoundByAllDigitsOfTheClockAtMidnight)
{
    EXPECT_NE(Find(Generate(FullButton(), {.Clock = 45000}).BODYHTML, u"'bgs45000'"), 0u);
}

TEST(DynamicButtonTest, CompletesTheAddressAndAsksForTheFirstImageAlone)
{
    DynamicButton button{.LinkUrl = u"WWW.example.com"};
    Tidy(button);
    EXPECT_EQ(button.LinkUrl, u"http://WWW.example.com");
    const Complaint missing{u"Please specify an image for the button.", "DefaultImage"};
    EXPECT_EQ(CheckPage(button, 0), missing);
    EXPECT_EQ(CheckPage(button, 1), std::nullopt);
    button.DefaultImage = u" ";
    EXPECT_EQ(CheckPage(button, 0), std::nullopt);
}

} // namespace
} // namespace orvane::testing
