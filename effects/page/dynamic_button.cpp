#include "effects/page/dynamic_button.h"

#include "core/numbers.h"
#include "core/template.h"
#include "services/recorded_files.h"
#include "services/web_address.h"

namespace orvane {

namespace {

constexpr Template body(uR"page(«SoundLine»«Button»
)page");

constexpr Template soundLine(uR"page(
<bgsound id='«Id»' src='' loop='1'>
)page");

constexpr Template linkedButton(uR"page(<a href='«LinkUrl»'«TargetAttribute»>«Button»</a>)page");

constexpr Template targetAttribute(uR"page( target="«LinkTarget»")page");

constexpr Template imageTag(uR"page(
<img src='«DefaultImage»' alt='' border='0'
    onMouseover="this.src='«OverImage»';«OverPlay»"
    onMouseout = "this.src='«OutImage»'"
    onMousedown = "this.src='«DownImage»';«ClickPlay»"
    onMouseUp="this.src='«OverImage»'">)page");

constexpr Template play(uR"page( «Id».src='«Sound»')page");

/// "bgs" and four digits of the clock, or all where there are fewer, as at midnight.
Text SoundElement(double clock)
{
    const Text digits = NumberToText(clock);
    const TextView four = digits.size() < 6 ? TextView(digits) : Mid(digits, digits.size() - 5, 4);
    return Join({u"bgs", four});
}

Text Play(TextView soundElement, TextView sound)
{
    return sound.empty() ? Text() : Fill(play, {{u"Id", soundElement}, {u"Sound", sound}});
}

Text Linked(const DynamicButton& button, Text image)
{
    if (button.LinkUrl.empty())
        return image;
    const Text target = button.LinkTarget.empty()
                            ? Text()
                            : Fill(targetAttribute, {{u"LinkTarget", button.LinkTarget}});
    return Fill(linkedButton,
                {{u"LinkUrl", button.LinkUrl}, {u"TargetAttribute", target}, {u"Button", image}});
}

} // namespace

std::optional<Complaint> CheckPage(const DynamicButton& button, int page)
{
    if (page == 0 && button.DefaultImage.empty())
        return Complaint{u"Please specify an image for the button.", "DefaultImage"};
    return std::nullopt;
}

void Tidy(DynamicButton& button)
{
    button.LinkUrl = WithScheme(button.LinkUrl);
}

std::vector<Hint> HintsOf(const DynamicButton& button)
{
    return HintList()
        .InScript("DefaultImage", button.DefaultImage, bothQuotes)
        .InScript("OverImage", button.OverImage, bothQuotes)
        .InScript("OverSound", button.OverSound, bothQuotes)
        .InScript("ClickImage", button.ClickImage, bothQuotes)
        .InScript("ClickSound", button.ClickSound, bothQuotes)
        .Hints();
}

EffectPayload Generate(const DynamicButton& button, const Surroundings& surroundings)
{
    const Text soundElement = SoundElement(surroundings.Clock);
    const auto otherwiseOver = [&](const Text& image) {
        return image.empty() ? button.OverImage : image;
    };
    const Text image = Fill(imageTag, {{u"DefaultImage", button.DefaultImage},
                                       {u"OverImage", button.OverImage},
                                       {u"OverPlay", Play(soundElement, button.OverSound)},
                                       {u"OutImage", otherwiseOver(button.DefaultImage)},
                                       {u"DownImage", otherwiseOver(button.ClickImage)},
                                       {u"ClickPlay", Play(soundElement, button.ClickSound)}});
    const bool hasSound = !button.OverSound.empty() || !button.ClickSound.empty();
    const Text sound = hasSound ? Fill(soundLine, {{u"Id", soundElement}}) : Text();
    EffectPayload payload{
        .Kind = EffectKind::DynamicButton,
        .BODYHTML = Fill(body, {{u"SoundLine", sound}, {u"Button", Linked(button, image)}}),
        .Required = button.Required,
    };
    std::size_t slot = 0;
    for (const Text* name : {&button.DefaultImage, &button.OverImage, &button.OverSound,
                             &button.ClickImage, &button.ClickSound})
        RequireFile(payload.Required, slot++, *name);
    return payload;
}

} // namespace orvane
