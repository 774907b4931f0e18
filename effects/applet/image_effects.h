#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "services/picked_image.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Image Effects window, which makes four effects out of one set of
/// controls; the defaults are those of a fresh window.
struct ImageEffects
{
    Text EffectPicker; ///< one of imageEffectNames; empty while nothing is chosen
    Text ImageFile;    ///< without its folder
    Text ImageWidth;   ///< pixels, as typed
    Text ImageHeight;  ///< pixels, as typed
    Text LinkOrColor;  ///< address; of the cube: the channels of its color, as "255,128,0"
    Text ColorSwatch;  ///< the color picked last, as "255,128,0"
    Text TargetFrame;
    Text FrameCount; ///< as typed
    bool chkGradual = false;
    int SizeSlider = 125;
    int RotationSlider = 10;
    int BackRed = 0; ///< 0 to 255, as are the other two
    int BackGreen = 0;
    int BackBlue = 0;
    RequiredFiles Required; ///< the source of `ImageFile`
    bool operator==(const ImageEffects&) const = default;
};

/// The effects in the order of the pick-list.
inline constexpr std::array<TextView, 4> imageEffectNames = {u"Image Cube", u"Image Ripple",
                                                             u"Lake Reflection", u"Image Brighten"};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ImageEffects> Effects, class Field>
void ForEachField(Effects& effects, Field&& field)
{
    field("EffectPicker", effects.EffectPicker);
    field("ImageFile", effects.ImageFile);
    field("ImageWidth", effects.ImageWidth);
    field("ImageHeight", effects.ImageHeight);
    field("LinkOrColor", effects.LinkOrColor);
    field("ColorSwatch", effects.ColorSwatch);
    field("TargetFrame", effects.TargetFrame);
    field("FrameCount", effects.FrameCount);
    field("chkGradual", effects.chkGradual);
    field("SizeSlider", effects.SizeSlider);
    field("RotationSlider", effects.RotationSlider);
    field("BackRed", effects.BackRed);
    field("BackGreen", effects.BackGreen);
    field("BackBlue", effects.BackBlue);
    field("Required", effects.Required);
}

/// The slider of a mode, with the captions at its side and ends.
struct EffectSlider
{
    int Lowest;
    int Highest;
    int Tick;
    int SmallStep;
    int Start;
    TextView Caption;
    TextView LeftEnd;
    TextView RightEnd;
    TextView Tip = {};
    bool operator==(const EffectSlider&) const = default;
};

/// What the second row of the properties asks for.
enum class SecondRow
{
    None,
    Color,
    Link,
};

/// What the third row of the properties asks for.
enum class ThirdRow
{
    None,
    TargetFrame,
    FrameCount,
};

/// How the window looks for one of the effects.
struct ImageEffectsMode
{
    TextView Name;
    int HelpTopic;
    TextView SubHeading;
    SecondRow Second;
    ThirdRow Third;
    TextView WidthLabel;
    TextView HeightLabel;
    bool CanBrightenGradually;
    bool HasRotation;
    std::optional<EffectSlider> Size;
};

/// The mode of the effect that is chosen, or null while none is.
const ImageEffectsMode* ModeOf(const ImageEffects& effects);

/// The size slider as it stands now, or nothing where it is hidden. Brighten shows it from the
/// moment that `chkGradual` is ticked; a new choice of the effect hides it again at a value that
/// lies outside.
std::optional<EffectSlider> SizeSliderOf(const ImageEffects& effects);

/// What a choice in the pick-list does: it empties what was typed and forgets the image's source.
/// Target frame, rotation, tick and picked color stay.
void ChooseEffect(ImageEffects& effects);

/// What a change of `chkGradual` does.
void ChooseGradual(ImageEffects& effects);

/// Takes a color that was picked, as "255,128,0".
void ChooseColor(ImageEffects& effects, const Text& channels);

/// Takes a picked image, or gives what speaks against it; a file that is no picture changes
/// nothing.
std::optional<Complaint> ChooseImage(ImageEffects& effects, const PickedImage& image);

/// The first failing check in order, or nothing when the wizard may finish.
std::optional<Complaint> Check(const ImageEffects& effects);

/// Leads a link that begins with "www." by its scheme.
void Tidy(ImageEffects& effects);

/// The page text of the effect that is chosen. Expects effects that pass Check().
EffectPayload Generate(const ImageEffects& effects);

/// Chooses the effect of a pasted tag and fills its fields; an unknown applet chooses none. The
/// lake's height is halved, and the cube's color is lost unless the quotes are taken off.
void ReadTag(ImageEffects& effects, const PastedTag& tag);

} // namespace orvane
