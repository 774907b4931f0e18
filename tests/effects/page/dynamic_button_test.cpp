#include "effects/page/dynamic_button.h"

#include "tests/support/expect_text.h"

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

const Surroundings noon{.Clock = 45000.5};

TEST(DynamicButtonTest, KeepsTheSourcesOfTheFilesThatItStillNames)
{
    DynamicButton button = FullButton();
    button.Required.Sources = {u"/p/up.gif", u"/p/over.gif", u"/s/other.wav", {}, u"/s/click.wav"};
    EXPECT_EQ(Generate(button, noon).Required.Sources,
              (RequiredFiles{.Sources = {u"/p/up.gif", u"/p/over.gif", {}, {}, u"/s/click.wav"}}
                   .Sources));
}

TEST(DynamicButtonTest, LeavesOutWhatIsNotSet)
{
    DynamicButton button = FullButton();
    button.OverSound.clear();
    button.ClickImage.clear();
    button.LinkTarget.clear();
    ExpectSameText(u"<bgsound id='bgs5000' src='' loop='1'>\r\n"
                   u"<a href='http://www.example.com/next.html'>"
                   u"<img src='up.gif' alt='' border='0'\r\n"
                   u"    onMouseover=\"this.src='over.gif';\"\r\n"
                   u"    onMouseout = \"this.src='up.gif'\"\r\n"
                   u"    onMousedown = \"this.src='over.gif'; bgs5000.src='click.wav'\"\r\n"
                   u"    onMouseUp=\"this.src='over.gif'\"></a>\r\n",
                   Generate(button, noon).BODYHTML);
}

TEST(DynamicButtonTest, NamesTheSoundByTheClock)
{
    const std::pair<double, TextView> cases[] = {
        {45000, u"bgs45000"}, // at midnight the clock's text is short
        {37865.270585185123, u"bgs8518"}};
    for (const auto& [clock, id] : cases)
        EXPECT_NE(Find(Generate(FullButton(), {.Clock = clock}).BODYHTML, Join({u"'", id, u"'"})),
                  0u);
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
