#include "effects/applet/image_fade.h"

#include "core/numbers.h"
#include "effects/applet/applet_tag_builder.h"
#include "reedit/applet_values.h"
#include "services/web_address.h"

#include <algorithm>

namespace orvane {

namespace {

/// The files of the images, each in its row's slot; those behind the last slot are copied by hand.
RequiredFiles FilesOf(const std::vector<FadeImage>& images)
{
    RequiredFiles files;
    for (std::size_t i = 0; i < std::min(images.size(), files.RequiredFileSources.size()); ++i) {
        files.RequiredFileSources[i] = images[i].Source;
        RequireFile(files, i, images[i].FileName);
    }
    return files;
}

} // namespace

std::optional<Complaint> Check(const FadeImage& image)
{
    if (image.txtURL.empty())
        return Complaint{u"Enter a URL in the text input box or click Cancel.", "txtURL"};
    return std::nullopt;
}

void Tidy(FadeImage& image)
{
    image.txtURL = WithScheme(image.txtURL);
}

std::optional<Complaint> AddImage(ImageFade& fade, const PickedImage& image)
{
    const Text name(GetFileName(image.Path));
    if (auto complaint = CheckNoBlank(name, FileRole::Image))
        return complaint;
    if (!image.Size)
        return std::nullopt;
    const Text width = NumberToText(image.Size->Width);
    const Text height = NumberToText(image.Size->Height);
    if (!fade.Images.empty() && (width != fade.FadeWidth || height != fade.FadeHeight))
        return Complaint{u"The images must be exactly the same size.  If one image is 100 pixels "
                         u"by 100 pixels, then this image must be 100 x 100.",
                         ""};
    fade.FadeWidth = width;
    fade.FadeHeight = height;
    fade.Images.push_back({.FileName = name, .txtURL = {}, .Source = image.Path});
    return std::nullopt;
}

std::optional<Complaint> Check(const ImageFade& fade)
{
    if (fade.Images.size() < 2)
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
    for (std::size_t i = 0; i < fade.Images.size(); ++i) {
        const FadeImage& image = fade.Images[i];
        tag.NumberedParam(u"IMAGE", i, image.FileName, both);
        if (!image.txtURL.empty())
            tag.NumberedParam(u"URL", i, image.txtURL, both);
    }
    if (!fade.FadeTarget.empty())
        tag.Param(u"TARGET", Trim(fade.FadeTarget), both);
    tag.Line(Join({u"<IMG SRC=\"", fade.Images.front().FileName, u"\">"}));

    return {
        .Kind = EffectKind::ImageFade,
        .BODYHTML = tag.Tag(),
        .Required = FilesOf(fade.Images),
        .SupportFiles = {u"ImageFade2ech.class", u"Pixelator3.class"},
    };
}

void ReadTag(ImageFade& fade, const PastedTag& tag)
{
    for (FadeImage& image : fade.Images)
        image.Source.clear();
    fade.FadePause = NumberToText(Val(TagValue(tag, u"PAUSE")) / 1000);
    fade.FadeTarget = TagValue(tag, u"TARGET VALUE=");
    fade.FadeSpeed = TagNumber(tag, u"TRANSITION.SPEED VALUE=", slowestFade, fastestFade);
}

} // namespace orvane
