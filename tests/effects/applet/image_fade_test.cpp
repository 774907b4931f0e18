#include "effects/applet/image_fade.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

ImageFade TwoImages()
{
    ImageFade fade{.FadePause = u"2.5", .FadeSpeed = 55, .FadeTarget = u" _top "};
    EXPECT_EQ(AddImage(fade, {u"/p/a.gif", PixelSize{100, 80}}), std::nullopt);
    EXPECT_EQ(AddImage(fade, {u"/q/b.gif", PixelSize{100, 80}}), std::nullopt);
    fade.Images[1].txtURL = u"http://www.example.com/b.html";
    return fade;
}

TEST(ImageFadeTest, NeedsTwoImagesAndNoTarget)
{
    ImageFade fade = TwoImages();
    fade.FadeTarget = u"";
    EXPECT_EQ(Find(Generate(fade).BODYHTML, u"TARGET"), 0u);
    EXPECT_EQ(Check(fade), std::nullopt);
    fade.Images.pop_back();
    EXPECT_EQ(Check(fade),
              (Complaint{u"You must enter at least 2 images to create the image fade effect.",
                         "FadeImages"}));
}

TEST(ImageFadeTest, TakesImagesOfTheFirstOnesSize)
{
    ImageFade fade;
    EXPECT_EQ(AddImage(fade, {u"/p/a b.gif", {}})->Words.substr(0, 30),
              u"This special effect does not a");
    EXPECT_EQ(AddImage(fade, {u"/p/a.txt", {}}), std::nullopt);
    EXPECT_EQ(fade, ImageFade{});
    fade = TwoImages();
    const ImageFade before = fade;
    EXPECT_EQ(AddImage(fade, {u"/p/c.gif", PixelSize{100, 81}})->Words,
              u"The images must be exactly the same size.  If one image is 100 pixels by 100 "
              u"pixels, then this image must be 100 x 100.");
    EXPECT_EQ(fade, before);
    fade.Images.resize(60);
    EXPECT_EQ(AddImage(fade, {u"/p/late.gif", PixelSize{100, 80}}), std::nullopt);
    const EffectPayload payload = Generate(fade);
    EXPECT_EQ(payload.Required.RequiredFileSources[1], u"/q/b.gif");
    EXPECT_NE(Find(payload.BODYHTML, u"\"IMAGE.60\" VALUE=\"late.gif\""), 0u);
}

TEST(ImageFadeTest, ReadsPauseSpeedAndTargetAlone)
{
    ImageFade fade = TwoImages();
    ReadTag(fade, {.Whole = u"PAUSE 3000 \"><PARAM TARGET VALUE=\"_top\"><PARAM "
                            u"TRANSITION.SPEED VALUE=170 \">"});
    ImageFade expected = TwoImages();
    for (FadeImage& image : expected.Images)
        image.Source.clear();
    expected.FadePause = u"3";
    expected.FadeTarget = u"\"_top";
    expected.FadeSpeed = 160;
    EXPECT_EQ(fade, expected);
    ReadTag(fade, {.Whole = Generate(TwoImages()).BODYHTML}); // whose names stand in quotes
    EXPECT_EQ(fade.FadePause, u"0");
    EXPECT_EQ(fade.FadeTarget, u"");
    EXPECT_EQ(fade.FadeSpeed, 10);
}

} // namespace
} // namespace orvane::testing
