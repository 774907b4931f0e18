#include "effects/applet/more_image_effects.h"

#include "core/numbers.h"
#include "effects/applet/applet_tag_builder.h"
#include "services/web_address.h"

namespace orvane {

namespace {

constexpr TextView slideIn = moreImageEffectNames[2];
constexpr TextView slideInAndOut = moreImageEffectNames[4];
constexpr TextView expandAndShrink = moreImageEffectNames[7];
constexpr TextView endless = loopCounts[5];

/// A picture of one transparent pixel, which stands where the image does not.
constexpr TextView nothingShown = u"invisi.gif";

/// How a frame of the animation takes the place of the one before.
struct FrameChange
{
    std::size_t Frame;
    TextView Transition; ///< empty for none
    TextView Way = {};   ///< empty: from the edge that the author chose
};

/// The frames of one effect.
struct EffectFrames
{
    TextView Effect;
    TextView Images; ///< in their order, "+" for the author's image, "-" for nothing shown
    std::array<FrameChange, 2> Changes;
};

constexpr EffectFrames allFrames[] = {
    {u"Shutter in", u"-+", {{{1, u"shutter", u"0"}, {}}}},
    {u"Shutter out", u"-+", {{{1, u"shutter", u"1"}, {}}}},
    {slideIn, u"-+", {{{1, u"slidein"}, {}}}},
    {u"Slide-out", u"+-", {{{0, u"slideout"}, {}}}},
    {slideInAndOut, u"-+-", {{{1, u"slidein"}, {2, u"slideout"}}}},
    {u"Expand", u"-+", {{{1, u"expand"}, {}}}},
    {u"Shrink", u"-+-", {{{1, u"shrink"}, {}}}},
    {expandAndShrink, u"-+-", {{{1, u"expand"}, {2, u"shrink"}}}},
};

/// The applet's number of the edge or corner; any other text lets it choose.
TextView Direction(TextView startEdge)
{
    // Stays as it is: pages made with earlier versions know the lower corners by these numbers.
    constexpr std::pair<TextView, TextView> numbers[] = {
        {u"top", u"2"},
        {u"right side", u"4"},
        {u"bottom", u"6"},
        {u"left side", u"8"},
        {u"upper left corner", u"1"},
        {u"upper right corner", u"3"},
        {u"lower left corner", u"5"},
        {u"lower right corner", u"7"},
    };
    for (const auto& [edge, number] : numbers)
        if (edge == startEdge)
            return number;
    return u"r";
}

void AddFrames(AppletTagBuilder& tag, const MoreImageEffects& effects, const EffectFrames& frames)
{
    for (std::size_t i = 0; i < frames.Images.size(); ++i)
        tag.NumberedParam(u"IMAGE", i, frames.Images[i] == u'+' ? effects.ImageFile : nothingShown);
    for (const auto& [frame, transition, fixedWay] : frames.Changes) {
        const TextView way = fixedWay.empty() ? Direction(effects.StartEdge) : fixedWay;
        const Text value = Join({transition, u"(", way, u")"});
        if (frames.Effect == slideIn && !transition.empty())
            // Stays as it is, with the blanks around the bracket.
            tag.Line(Join({u"<PARAM NAME=TRANSITION.TYPE.1 VALUE=\"", value, u"\" > "}));
        else if (!transition.empty())
            tag.NumberedParam(u"TRANSITION.TYPE", frame, value);
    }
    if (frames.Effect == expandAndShrink)
        tag.Param(u"PAUSE.0", u"0");
}

TextView CyclesOf(TextView loopCount)
{
    if (loopCount == endless)
        return u"0";
    return loopCount.empty() ? u"1" : loopCount;
}

} // namespace

Look LookOf(const MoreImageEffects& effects)
{
    const bool isChosen = !effects.EffectPicker.empty();
    // Stays as it is: of the two effects that come and go, only one keeps its pause at one loop.
    const bool pauses = effects.LoopCount == endless || Val(effects.LoopCount) > 1 ||
                        effects.EffectPicker == slideInAndOut;
    return {{.Control = "spaceAbove", .IsShown = !isChosen},
            {.Control = "frameProperties", .IsShown = isChosen},
            {.Control = "frameBehavior", .IsShown = isChosen},
            {.Control = "LoopCount", .WordsRight = effects.LoopCount == u"1" ? u"time" : u"times"},
            {.Control = "PauseSeconds", .IsShown = pauses},
            {.Control = "StartEdge", .IsShown = !effects.EffectPicker.starts_with(u"Shutter")}};
}

bool PausesOnChoice(const MoreImageEffects& effects)
{
    return effects.EffectPicker == slideInAndOut || effects.EffectPicker == expandAndShrink;
}

std::optional<Complaint> ChooseImage(MoreImageEffects& effects, const PickedImage& image)
{
    if (auto complaint = CheckNoBlank(GetFileName(image.Path), FileRole::Image))
        return complaint;
    if (image.Size)
        TakeImage(effects, image);
    return std::nullopt;
}

std::optional<Complaint> Check(const MoreImageEffects& effects)
{
    if (effects.ImageFile.empty())
        return Complaint{u"Please specify an image.", "ImageFile"};
    if (effects.ImageWidth.empty() || effects.ImageHeight.empty())
        return Complaint{u"Please input the width and height of the special effect.", "ImageWidth"};
    return std::nullopt;
}

void Tidy(MoreImageEffects& effects)
{
    effects.LinkUrl = WithScheme(effects.LinkUrl);
}

std::vector<Hint> HintsOf(const MoreImageEffects& effects)
{
    HintList hints;
    hints.Number("ImageWidth", effects.ImageWidth).Number("ImageHeight", effects.ImageHeight);
    if (effects.LoopCount != endless)
        hints.Number("LoopCount", effects.LoopCount);
    return hints.Seconds("PauseSeconds", effects.PauseSeconds, longestTimer).Hints();
}

EffectPayload Generate(const MoreImageEffects& effects)
{
    AppletTagBuilder tag(u"Animate1.class",
                         {{u"WIDTH", effects.ImageWidth}, {u"HEIGHT", effects.ImageHeight}});
    tag.Origin(u"COPYRIGHT", u"DOCUMENTATION");
    tag.Param(u"SOUND.ACTIVATION.0", u"auto");
    for (const EffectFrames& frames : allFrames)
        if (frames.Effect == effects.EffectPicker)
            AddFrames(tag, effects, frames);
    tag.Param(u"TRANSITION.RATE.0", NumberToText(100 - effects.SpeedSlider));
    tag.Param(u"TRANSITION.STEP.0", u"50");
    tag.Param(u"PAUSE.1", NumberToText(Val(effects.PauseSeconds) * 1000));
    tag.Param(u"CYCLES", CyclesOf(effects.LoopCount));
    tag.Param(u"URL.0", effects.LinkUrl.empty() ? TextView(u"null") : effects.LinkUrl);
    tag.ParamUnlessEmpty(u"BGCOLOR.0", effects.BackColorText);
    tag.ParamUnlessEmpty(u"FGCOLOR.0", effects.BackColorText);
    RequiredFiles required = effects.Required;
    RequireBrowsedFile(required, 0, effects.ImageFile);
    return {
        .Kind = EffectKind::MoreImageEffects,
        .BODYHTML = tag.Tag(),
        .Required = required,
        .SupportFiles = {u"Animate1.class", u"CoolTool3.class", Text(nothingShown)},
    };
}

} // namespace orvane
