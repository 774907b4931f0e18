#include "effects/page/slideshow.h"

#include "core/pick_lists.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

Slideshow TwoImages()
{
    return {.Rows = {{.FileName = u"a.jpg"}, {.FileName = u"b.gif"}}};
}

TEST(SlideshowTest, MultipliesTheDurationIn16Bits)
{
    const std::pair<TextView, TextView> cases[] = {
        {u"", u"5000"},  {u"0", u"0"},      {u"2.5", u"2000"}, {u"32", u"32000"},
        {u"33", u""},    {u"-33", u""},     {u" ", u""},       {u"5 s", u""},
        {u"99999", u""}, {u"3.5", u"4000"}, {u"-1", u"-1000"}};
    for (const auto& [seconds, interval] : cases) {
        Slideshow show = TwoImages();
        show.chkDisplayControls = true;
        show.txtSlideDuration = seconds;
        const Text call = Join({u"setInterval('doTrans(1)', ", interval, u");"});
        EXPECT_NE(Find(Generate(show).HEADHTML, call), 0u) << ToUtf8(seconds);
        EXPECT_NE(Find(Generate(show).BODYHTML, call), 0u) << ToUtf8(seconds);
    }
}

TEST(SlideshowTest, OffersEveryTransition)
{
    Slideshow show = TwoImages();
    show.cmbTransitions = RevealTransitions.back();
    EXPECT_NE(Find(Generate(show).HEADHTML, u"'revealTrans(transition=23,duration=1)';"), 0u);
}

TEST(SlideshowTest, NeedsTwoImagesAndAWayToMove)
{
    const Complaint tooFew{u"Please add more than one image to the Slideshow Image List.", "List1"};
    EXPECT_EQ(CheckPage({.Rows = {{.FileName = u"a.jpg"}}}, 0), tooFew);
    EXPECT_EQ(CheckPage(TwoImages(), 0), std::nullopt);

    EXPECT_EQ(CheckMoves({.chkAutoStart = true}, "chkDisplayControls"), std::nullopt);
    const Slideshow stuck{.chkAutoStart = false};
    EXPECT_EQ(CheckMoves(stuck, "chkAutoStart"),
              (Complaint{u"If you choose to not autostart your slideshow, you must display the "
                         u"slideshow controls.",
                         "chkDisplayControls"}));
    EXPECT_EQ(CheckMoves(stuck, "chkDisplayControls"),
              (Complaint{u"If you choose to not display the slideshow controls on your Web page, "
                         u"then you must autostart your slideshow.",
                         "chkAutoStart"}));
}

} // namespace
} // namespace orvane::testing
