#include "effects/applet/image_effects.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ExpectedText;
using testing::ExpectSameText;

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

TEST(ImageEffectsTest, WritesTheTagOfEachApplet)
{
    ImageEffects cube = Chosen(u"Image Cube");
    EXPECT_TRUE(Has(cube, u"<PARAM NAME=BACKG VALUE=\"192\">"));
    cube.ImageFile = u"face.gif";
    cube.ImageWidth = u"300";
    cube.ImageHeight = u"200";
    ChooseColor(cube, u"10,20,255");
    EXPECT_EQ(cube.LinkOrColor, u"10,20,255");
    cube.SizeSlider = 100;
    cube.RotationSlider = 25;
    cube.Required.Sources[0] = u"/p/face.gif";
    const EffectPayload payload = Generate(cube);
    ExpectSameText(ExpectedText("image_effects_cube.html"), payload.BODYHTML);
    const EffectPayload rest{.Kind = EffectKind::ImageEffects,
                             .BODYHTML = payload.BODYHTML,
                             .Required = {.Names = {u"face.gif"}, .Sources = {u"/p/face.gif"}},
                             .SupportFiles = {u"TmapCube.class", u"TmapCubeb.class"}};
    EXPECT_EQ(payload, rest);

    ImageEffects lake = Chosen(u"Lake Reflection");
    lake.ImageFile = u"lake.jpg";
    lake.LinkOrColor = u"www.example.com/lake.html";
    lake.TargetFrame = u"_top";
    Tidy(lake);
    ExpectSameText(ExpectedText("image_effects_lake.html"), Generate(lake).BODYHTML);
    EXPECT_EQ(Generate(lake).SupportFiles, (std::array<Text, 3>{u"Lake.class"}));
    lake.ImageHeight = u"x";
    lake.LinkOrColor = lake.TargetFrame = u"";
    EXPECT_TRUE(Has(lake, u" HEIGHT=\"-10\">"));
    EXPECT_FALSE(Has(lake, u"HREF") || Has(lake, u"TARGET"));

    ImageEffects ripple = Chosen(u"Image Ripple");
    ripple.ImageFile = u"pond.jpg";
    EXPECT_TRUE(Has(ripple, u"<PARAM NAME=FRAMES VALUE=\"15\">"));
    ripple.SizeSlider = 30;
    ripple.FrameCount = u"25";
    ExpectSameText(ExpectedText("image_effects_ripple.html"), Generate(ripple).BODYHTML);
}

TEST(ImageEffectsTest, WritesTheScriptAndTheImageOfBrighten)
{
    ImageEffects effects = Chosen(u"Image Brighten");
    effects.ImageFile = u"sun.gif";
    effects.SizeSlider = 7;
    const auto expectFiles = [&](const std::string& name) {
        const EffectPayload payload = Generate(effects);
        ExpectSameText(ExpectedText(name + "_head.html"), payload.HEADHTML);
        ExpectSameText(ExpectedText(name + "_body.html"), payload.BODYHTML);
        EXPECT_EQ(payload.SupportFiles, (std::array<Text, 3>{}));
    };
    expectFiles("image_effects_brighten_plain");
    effects.LinkOrColor = u"http://www.example.com/";
    effects.chkGradual = true;
    expectFiles("image_effects_brighten_gradual");
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
    EXPECT_EQ(Check(effects), (Complaint{u"Please select an image.", ""}));
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
} // namespace orvane
