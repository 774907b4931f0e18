#include "effects/applet/image_fade.h"

#include "core/numbers.h"
#include "effects/applet/applet_tag_builder.h"
#include "reedit/applet_values.h"
#include "services/move_row.h"

#include <algorithm>

namespace orvane {

namespace {

/// The images whose files can be recorded; those behind them are copied by hand.
std::size_t RecordedImages(const ImageFade& fade)
{
    return std::min(fade.FadeImages.size(), fade.Required.Sources.size());
}

/// An image's link; a draft that was changed by hand may lack it.
Text LinkOf(const ImageFade& fade, std::size_t row)
{
    return row < fade.FadeLinks.size() ? fade.FadeLinks[row] : Text();
}

} // namespace

std::optional<Complaint> AddImage(ImageFade& fade, const PickedImage& image)
{
    const Text name(GetFileName(image.Path));
    if (auto complaint = CheckNoBlank(name, FileRole::Image))
        return complaint;
    if (!image.Size)
        return std::nullopt;
    const Text width = NumberToText(image.Size->Width);
    const Text height = NumberToText(image.Size->Height);
    if (!fade.FadeImages.empty() && (width != fade.FadeWidth || height != fade.FadeHeight))
        return Complaint{u"The images must be exactly the same size.  If one image is 100 pixels "
                         u"by 100 pixels, then this image must be 100 x 100.",
                         ""};
    fade.FadeWidth = width;
    fade.FadeHeight = height;
    fade.FadeImages.push_back(name);
    fade.FadeLinks.resize(fade.FadeImages.size());
    if (RecordedImages(fade) == fade.FadeImages.size())
        fade.Required.Sources[fade.FadeImages.size() - 1] = image.Path;
    return std::nullopt;
}

ForgottenImage ForgetImage(ImageFade& fade, std::size_t row)
{
    ForgottenImage image{.Source = {}, .Width = fade.FadeWidth, .Height = fade.FadeHeight};
    auto& sources = fade.Required.Sources;
    if (row < sources.size()) {
        image.Source = sources[row];
        std::move(sources.begin() + row + 1, sources.end(), sources.begin() + row);
        sources.back().clear();
    }
    if (fade.FadeImages.empty()) {
        fade.FadeWidth.clear();
        fade.FadeHeight.clear();
    }
    return image;
}

void RecallImage(ImageFade& fade, std::size_t row, const ForgottenImage& image)
{
    auto& sources = fade.Required.Sources;
    if (row < sources.size()) {
        std::move_backward(sources.begin() + row, sources.end() - 1, sources.end());
        sources[row] = image.Source;
    }
    fade.FadeWidth = image.Width;
    fade.FadeHeight = image.Height;
}

void MoveSource(ImageFade& fade, std::size_t from, std::size_t to)
{
    auto& sources = fade.Required.Sources;
    std::vector<Text> moved(sources.begin(), sources.end());
    moved.resize(std::max({moved.size(), from + 1, to + 1})); // images behind have none
    MoveRow(moved, from, to);
    std::copy_n(moved.begin(), sources.size(), sources.begin());
}

std::optional<Complaint> CheckFadeLink(TextView link)
{
    if (link.empty())
        return Complaint{u"Enter a URL in the text input box or click Cancel.", "txtURL"};
    return std::nullopt;
}

std::optional<Complaint> Check(const ImageFade& fade)
{
    if (fade.FadeImages.size() < 2)
        return Complaint{u"You must enter at least 2 images to create the image fade effect.",
                         "FadeImages"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const ImageFade& fade)
{
    return HintList().Seconds("FadePause", fade.FadePause, longestTimer).Hints();
}

EffectPayload Generate(const ImageFade& fade)
{
    constexpr ParamQuotes both = ParamQuotes::Both;
    AppletTagBuilder tag(u"ImageFade2ech.class",
                         {{u"WIDTH", fade.FadeWidth}, {u"HEIGHT", fade.FadeHeight}});
    tag.Origin(u"COPYRIGHT", u"AUTHOR", both);
    tag.Param(u"PAUSE", NumberToText(Val(fade.FadePause) * 1000), both);
    tag.Param(u"TRANSITION.STEPS", u"15", both);
    tag.Param(u"TRANSITION.SPEED", NumberToText(fade.FadeSpeed), both);
    for (std::size_t i = 0; i < fade.FadeImages.size(); ++i) {
        tag.NumberedParam(u"IMAGE", i, fade.FadeImages[i], both);
        if (const Text link = LinkOf(fade, i); !link.empty())
            tag.NumberedParam(u"URL", i, link, both);
    }
    if (!fade.FadeTarget.empty())
        tag.Param(u"TARGET", Trim(fade.FadeTarget), both);
    tag.Line(Join({u"<IMG SRC=\"", fade.FadeImages.front(), u"\">"}));

    RequiredFiles required = fade.Required;
    for (std::size_t i = 0; i < RecordedImages(fade); ++i)
        RequireFile(required, i, fade.FadeImages[i]);
    return {
        .Kind = EffectKind::ImageFade,
        .BODYHTML = tag.Tag(),
        .Required = required,
        .SupportFiles = {u"ImageFade2ech.class", u"Pixelator3.class"},
    };
}

void ReadTag(ImageFade& fade, const PastedTag& tag)
{
    fade.Required = {};
    fade.FadePause = NumberToText(Val(TagValue(tag, u"PAUSE")) / 1000);
    fade.FadeTarget = TagValue(tag, u"TARGET VALUE=");
    fade.FadeSpeed = TagNumber(tag, u"TRANSITION.SPEED VALUE=", slowestFade, fastestFade);
}

} // namespace orvane
