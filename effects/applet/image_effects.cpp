#include "effects/applet/image_effects.h"

#include "core/numbers.h"
#include "core/template.h"
#include "effects/applet/applet_tag_builder.h"
#include "reedit/applet_values.h"
#include "services/color.h"
#include "services/web_address.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr TextView cube = imageEffectNames[0];
constexpr TextView ripple = imageEffectNames[1];
constexpr TextView lake = imageEffectNames[2];
constexpr TextView brighten = imageEffectNames[3];

constexpr int restingSize = 125;
constexpr EffectSlider distance{70, 250, 10, 1, 70, u"Size of cube:", u"Large", u"Small"};
constexpr EffectSlider period{1, 50, 2, 1, 20, u"Ripple size:", u"Small", u"Large"};
constexpr EffectSlider brightening{
    1,
    15,
    1,
    2,
    5,
    u"Speed:",
    u"Slow",
    u"Fast",
    u"This specifies how quickly the image will brighten when the mouse moves "
    u"over it."};
constexpr int slowestRotation = 1;
constexpr int fastestRotation = 75;

constexpr std::array<ImageEffectsMode, 4> modes = {{
    {cube, 13,
     u"This special effect places an image on each face of a cube and rotates it.  You must use a "
     u"256 x 256 pixel image.",
     SecondRow::Color, ThirdRow::None, u"Applet Width:", u"Applet Height:", false, true, distance},
    {lake, 15,
     u"This special effect reflects and animates an image as if it were being reflected by a "
     u"shimmering lake.",
     SecondRow::Link, ThirdRow::TargetFrame, u"Image Width:", u"Image Height:", false, false,
     std::nullopt},
    {ripple, 14, u"This special effect ripples an image and produces a wave-like effect.",
     SecondRow::None, ThirdRow::FrameCount, u"Image Width:", u"Image Height:", false, false,
     period},
    {brighten, 40,
     u"This special effect displays a faded version of an image and brightens the image when the "
     u"mouse moves over it.  Internet Explorer 4 and above.",
     SecondRow::Link, ThirdRow::None, u"Image Width:", u"Image Height:", true, false, std::nullopt},
}};

constexpr Template brightenHead(uR"page(
<SCRIPT LANGUAGE='JavaScript1.2'>

«CreditBanner»

<!--
function startHighlight(img)
{
    imgobj = img;
    highlightInterval = setInterval('imageHighlight(imgobj)', 50);
}

function imageHighlight(img)
{
    if (img.filters.alpha.opacity < 100)
«StepLine»
    else if (window.highlightInterval)
        clearInterval(highlightInterval);
}

function imageDim(img)
{
    clearInterval(highlightInterval);
    img.filters.alpha.opacity = 30;
}

//-->
</SCRIPT>


)page");

constexpr TextView stepToTheEnd = u"        img.filters.alpha.opacity = 100;";

constexpr Template gradualStep(uR"page(        img.filters.alpha.opacity += «Step»;)page");

// Stays as it is: without a link the body has no line end.
constexpr Template brightenImage(
    uR"page(<IMG SRC="«Image»" border=0 style="filter:alpha(opacity=30)" onMouseover="startHighlight(this)" onMouseout="imageDim(this)">)page");

constexpr Template brightenLink(uR"page(
<A HREF="«Url»">«ImageTag»</A>
)page");

AppletTagBuilder OpenTag(TextView code, const ImageEffects& effects, TextView height)
{
    AppletTagBuilder tag(code, {{u"WIDTH", effects.ImageWidth}, {u"HEIGHT", height}});
    tag.Origin(u"Author", u"Website", ParamQuotes::Name);
    tag.Param(u"IMAGE", effects.ImageFile);
    return tag;
}

/// The tag, with the image itself for browsers without applets.
Text CloseTag(AppletTagBuilder& tag, const ImageEffects& effects)
{
    return tag.Line(Join({u"<IMG SRC=\"", effects.ImageFile, u"\">"})).Tag();
}

void GenerateCube(EffectPayload& payload, const ImageEffects& effects)
{
    const auto channel = [&](int value) {
        return effects.LinkOrColor.empty() ? Text(u"192") : NumberToText(value);
    };
    const Text spin = NumberToText(effects.RotationSlider);
    AppletTagBuilder tag = OpenTag(u"TmapCube.class", effects, effects.ImageHeight);
    tag.Param(u"RES", u"1");
    tag.Param(u"BACKR", channel(effects.BackRed));
    tag.Param(u"BACKG", channel(effects.BackGreen));
    tag.Param(u"BACKB", channel(effects.BackBlue));
    tag.Param(u"DISTANCE", NumberToText(effects.SizeSlider));
    tag.Param(u"ROTX", spin);
    tag.Param(u"ROTY", spin);
    tag.Param(u"ROTZ", spin);
    tag.Line(u"<PARAM NAME=CLEARBACK VALUE=\"YES\"> "); // Stays as it is, with the blank behind it.
    payload.BODYHTML = CloseTag(tag, effects);
    payload.SupportFiles = {u"TmapCube.class", u"TmapCubeb.class"};
}

void GenerateLake(EffectPayload& payload, const ImageEffects& effects)
{
    // The applet paints the image and its reflection, which overlap a little.
    const Text height = NumberToText(Val(effects.ImageHeight) * 2 - 10);
    AppletTagBuilder tag = OpenTag(u"Lake.class", effects, height);
    tag.ParamUnlessEmpty(u"HREF", effects.LinkOrColor);
    tag.ParamUnlessEmpty(u"TARGET", effects.TargetFrame);
    payload.BODYHTML = CloseTag(tag, effects);
    payload.SupportFiles = {u"Lake.class"};
}

void GenerateRipple(EffectPayload& payload, const ImageEffects& effects)
{
    AppletTagBuilder tag = OpenTag(u"ripple.class", effects, effects.ImageHeight);
    tag.Param(u"PERIOD", NumberToText(effects.SizeSlider));
    tag.Param(u"FRAMES", effects.FrameCount.empty() ? TextView(u"15") : effects.FrameCount);
    payload.BODYHTML = CloseTag(tag, effects);
    payload.SupportFiles = {u"ripple.class"};
}

void GenerateBrighten(EffectPayload& payload, const ImageEffects& effects)
{
    const Text step = effects.chkGradual
                          ? Fill(gradualStep, {{u"Step", NumberToText(effects.SizeSlider)}})
                          : Text(stepToTheEnd);
    payload.HEADHTML = Fill(brightenHead, {{u"CreditBanner", CreditBanner}, {u"StepLine", step}});
    const Text image = Fill(brightenImage, {{u"Image", effects.ImageFile}});
    payload.BODYHTML =
        effects.LinkOrColor.empty()
            ? image
            : Fill(brightenLink, {{u"Url", effects.LinkOrColor}, {u"ImageTag", image}});
}

/// The effect that made a tag, told by the letters behind CODE=.
TextView EffectOf(TextView lettersBehindCode)
{
    constexpr std::pair<TextView, TextView> known[] = {
        {u"Image", brighten}, {u"Lake.", lake}, {u"rippl", ripple}, {u"TmapC", cube}};
    for (const auto& [letters, effect] : known)
        if (lettersBehindCode == letters || lettersBehindCode == Join({u"\"", Left(letters, 4)}))
            return effect;
    return {};
}

void ReadLake(ImageEffects& effects, const PastedTag& tag)
{
    // Stays as it is: the ten pixels of the overlap come back with the quotes taken off alone.
    const double overlap = tag.Reading == Quotes::TakenOff ? 10 : 0;
    effects.ImageHeight = NumberToText((Val(TagValue(tag, u"HEIGHT=")) + overlap) / 2);
    effects.LinkOrColor = TagValue(tag, u"HREF VALUE=");
    effects.TargetFrame = TagValue(tag, u"TARGET VALUE=");
}

void ReadCube(ImageEffects& effects, const PastedTag& tag)
{
    const Text channels =
        Join({TagValue(tag, u"BACKR VALUE="), u",", TagValue(tag, u"BACKG VALUE="), u",",
              TagValue(tag, u"BACKB VALUE=")});
    // Stays as it is: as long as the quotes are there, the channels are not taken over.
    if (tag.Reading == Quotes::TakenOff)
        ChooseColor(effects, channels);
    effects.LinkOrColor = channels;
    effects.SizeSlider = TagNumber(tag, u"DISTANCE VALUE=", distance.Lowest, distance.Highest);
    effects.RotationSlider = TagNumber(tag, u"ROTX VALUE=", slowestRotation, fastestRotation);
}

} // namespace

const ImageEffectsMode* ModeOf(const ImageEffects& effects)
{
    const auto found = std::find_if(modes.begin(), modes.end(), [&](const ImageEffectsMode& mode) {
        return mode.Name == effects.EffectPicker;
    });
    return found == modes.end() ? nullptr : &*found;
}

std::optional<EffectSlider> SizeSliderOf(const ImageEffects& effects)
{
    const ImageEffectsMode* mode = ModeOf(effects);
    if (mode && mode->CanBrightenGradually && effects.chkGradual &&
        effects.SizeSlider <= brightening.Highest)
        return brightening;
    return mode ? mode->Size : std::nullopt;
}

Look LookOf(const ImageEffects& effects)
{
    const ImageEffectsMode* mode = ModeOf(effects);
    if (mode == nullptr)
        return {{.Control = "frameProperties", .IsShown = false}};
    const auto size = SizeSliderOf(effects);
    ControlLook slider{.Control = "SizeSlider", .IsShown = size.has_value()};
    if (size) {
        slider.Words = size->Caption;
        slider.Tip = size->Tip;
        slider.WordsLeft = size->LeftEnd;
        slider.WordsRight = size->RightEnd;
    }
    return {{.Control = "frameProperties", .IsShown = true},
            {.Control = "ImageWidth", .Words = mode->WidthLabel},
            {.Control = "ImageHeight", .Words = mode->HeightLabel},
            {.Control = "LinkOrColor", .IsShown = mode->Second == SecondRow::Link},
            {.Control = "ColorSwatch", .IsShown = mode->Second == SecondRow::Color},
            {.Control = "TargetFrame", .IsShown = mode->Third == ThirdRow::TargetFrame},
            {.Control = "FrameCount", .IsShown = mode->Third == ThirdRow::FrameCount},
            {.Control = "chkGradual", .IsShown = mode->CanBrightenGradually},
            slider,
            {.Control = "RotationSlider", .IsShown = mode->HasRotation}};
}

void ChooseEffect(ImageEffects& effects)
{
    for (Text* typed : {&effects.ImageFile, &effects.LinkOrColor, &effects.ImageWidth,
                        &effects.ImageHeight, &effects.FrameCount})
        typed->clear();
    const ImageEffectsMode* mode = ModeOf(effects);
    effects.SizeSlider = mode && mode->Size ? mode->Size->Start : restingSize;
    effects.Required = {};
}

void ChooseGradual(ImageEffects& effects)
{
    if (effects.chkGradual)
        effects.SizeSlider = brightening.Start;
}

void ChooseColor(ImageEffects& effects, const Text& channels)
{
    const std::int32_t color = PackedColor(channels).value_or(0);
    effects.ColorSwatch = channels;
    effects.BackRed = color & 0xFF;
    effects.BackGreen = color >> 8 & 0xFF;
    effects.BackBlue = color >> 16 & 0xFF;
    effects.LinkOrColor = channels;
}

std::optional<Complaint> ChooseImage(ImageEffects& effects, const PickedImage& image)
{
    if (!image.Size)
        return std::nullopt;
    if (effects.EffectPicker == cube && image.Size != PixelSize{256, 256})
        return Complaint{u"The image must be 256 pixels by 256 pixels in size.  Please choose "
                         u"another image.",
                         ""};
    if (auto complaint = CheckNoBlank(GetFileName(image.Path), FileRole::Image))
        return complaint;
    TakeImage(effects, image);
    return std::nullopt;
}

std::optional<Complaint> Check(const ImageEffects& effects)
{
    // Brighten asks for the size as well, which its page text has no use for.
    if (effects.ImageWidth.empty() || effects.ImageHeight.empty())
        return Complaint{u"Please input the special effect width and height.", "ImageWidth"};
    if (effects.ImageFile.empty())
        return Complaint{u"Please select an image.", "ImageFile"};
    return std::nullopt;
}

void Tidy(ImageEffects& effects)
{
    const ImageEffectsMode* mode = ModeOf(effects);
    if (mode && mode->Second == SecondRow::Link)
        effects.LinkOrColor = WithScheme(effects.LinkOrColor);
}

std::vector<Hint> HintsOf(const ImageEffects& effects)
{
    return HintList()
        .Number("ImageWidth", effects.ImageWidth)
        .Number("ImageHeight", effects.ImageHeight)
        .Number("FrameCount", effects.FrameCount)
        .Hints();
}

EffectPayload Generate(const ImageEffects& effects)
{
    EffectPayload payload{.Kind = EffectKind::ImageEffects, .Required = effects.Required};
    RequireBrowsedFile(payload.Required, 0, effects.ImageFile);
    if (effects.EffectPicker == cube)
        GenerateCube(payload, effects);
    else if (effects.EffectPicker == lake)
        GenerateLake(payload, effects);
    else if (effects.EffectPicker == ripple)
        GenerateRipple(payload, effects);
    else if (effects.EffectPicker == brighten)
        GenerateBrighten(payload, effects);
    return payload;
}

void ReadTag(ImageEffects& effects, const PastedTag& tag)
{
    effects.EffectPicker = EffectOf(tag.AppletTextAfterCODE);
    ChooseEffect(effects);
    if (effects.EffectPicker.empty() || effects.EffectPicker == brighten)
        return;
    effects.ImageWidth = TagValue(tag, u"WIDTH=");
    effects.ImageHeight = TagValue(tag, u"HEIGHT=");
    effects.ImageFile = TagValue(tag, u"IMAGE VALUE=");
    if (effects.EffectPicker == lake)
        ReadLake(effects, tag);
    else if (effects.EffectPicker == cube)
        ReadCube(effects, tag);
    else {
        effects.SizeSlider = TagNumber(tag, u"PERIOD VALUE=", period.Lowest, period.Highest);
        effects.FrameCount = TagValue(tag, u"FRAMES VALUE=");
    }
}

} // namespace orvane
