#include "effects/applet/image_effects.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

ImageEffects Chosen(TextView effect)
{
    ImageEffects effects{.EffectPicker = Text(effect)};
    ChooseEffect(effects);
    effects.ImageFile = u"a.gif";
    effects.ImageWidth = u"320";
    effects.ImageHeight = u"100";
    return effects;
}

bool Has(const ImageEffects& effects, TextView part)
{
    return Find(Generate(effects).BODYHTML, part) != 0;
}

TEST(ImageEffectsTest, WritesWhatIsLeftEmptyOrIsNoNumber)
{
    EXPECT_TRUE(Has(Chosen(u"Image Cube"), u"<PARAM NAME=BACKG VALUE=\"192\">"));
    EXPECT_TRUE(Has(Chosen(u"Image Ripple"), u"<PARAM NAME=FRAMES VALUE=\"15\">"));
    ImageEffects lake = Chosen(u"Lake Reflection");
    lake.ImageHeight = u"x";
    EXPECT_TRUE(Has(lake, u" HEIGHT=\"-10\">"));
    EXPECT_FALSE(Has(lake, u"HREF") || Has(lake, u"TARGET"));
}

TEST(ImageEffectsTest, RefusesACubeOfAnotherSizeBeforeABlank)
{
    ImageEffects effects{.EffectPicker = u"Image Cube"};
    EXPECT_EQ(ChooseImage(effects, {u"/p/a b.gif", PixelSize{256, 255}})->Words,
              u"The image must be 256 pixels by 256 pixels in size.  Please choose another image.");
    EXPECT_EQ(ChooseImage(effects, {u"/p/a b.gif", PixelSize{256, 256}})->Words.substr(0, 40),
              u"This special effect does not allow image");
    EXPECT_EQ(ChooseImage(effects, {u"/p/a b.txt", {}}), std::nullopt);
    EXPECT_EQ(effects, (ImageEffects{.EffectPicker = u"Image Cube"}));
    EXPECT_EQ(Check(effects),
              (Complaint{u"Please input the special effect width and height.", "ImageWidth"}));
    effects.ImageWidth = effects.ImageHeight = u"x";
    EXPECT_EQ(Check(effects), (Complaint{u"Please select an image.", "ImageFile"}));
}

TEST(ImageEffectsTest, ReadsATagWithItsQuotes)
{
    const auto read = [](ImageEffects effects, TextView letters) {
        const Text tag = Generate(effects).BODYHTML;
        effects = {};
        ReadTag(effects, {.Whole = tag, .AppletTextAfterCODE = Text(letters)});
        return effects;
    };
    ImageEffects cube = Chosen(u"Image Cube");
    ChooseColor(cube, u"1,2,3");
    const ImageEffects expected{.EffectPicker = u"Image Cube",
                                .ImageFile = u"\"a.gif",
                                .ImageWidth = u"\"320",
                                .ImageHeight = u"\"100",
                                .LinkOrColor = u"\"1,\"2,\"3",
                                .SizeSlider = 70,
                                .RotationSlider = 1};
    EXPECT_EQ(read(cube, u"\"Tmap"), expected);
    EXPECT_EQ(read(Chosen(u"Lake Reflection"), u"Lake.").ImageHeight, u"0");
    EXPECT_EQ(read(Chosen(u"Image Ripple"), u"\"ripp").FrameCount, u"\"15");
    EXPECT_EQ(read(cube, u"\"Imag"), (ImageEffects{.EffectPicker = u"Image Brighten"}));
    EXPECT_EQ(read(cube, u"AnFad"), ImageEffects{});
    ImageEffects lake;
    ReadTag(lake, {.Whole = u"HEIGHT=190 \"", .AppletTextAfterCODE = u"\"Lake"});
    EXPECT_EQ(lake.ImageHeight, u"95");
}

} // namespace
} // namespace orvane::testing
