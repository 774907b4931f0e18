#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "services/hints.h"
#include "services/picked_image.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Image Effects window, which makes four effects with one set of
/// controls; the defaults are those of a fresh window.
struct ImageEffects
{
    static constexpr std::array Kinds = {EffectKind::ImageEffects};
    static constexpr int Pages = 1;

    Text EffectPicker; ///< one of imageEffectNames; empty while nothing is chosen
    Text ImageFile;    ///< without its folder
    Text ImageWidth;   ///< pixels, as typed
    Text ImageHeight;  ///< pixels, as typed
    Text LinkOrColor;  ///< link address; for the cube its background color, as "255,128,0"
    Text ColorSwatch;  ///< the color picked last, as "255,128,0"
    Text TargetFrame;
    Text FrameCount; ///< as typed
    bool chkGradual = false;
    int SizeSlider = 125;
    int RotationSlider = 10;
    int BackRed = 0; ///< 0 to 255, as are BackGreen and BackBlue
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
}

/// The size slider of a mode: its range, steps and start value, and the captions beside it and at
/// its ends.
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

/// What the window shows for one of the effects.
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

/// The mode of the chosen effect, or null while none is chosen.
const ImageEffectsMode* ModeOf(const ImageEffects& effects);

/// The size slider for the present values, or nothing where it is hidden. Brighten shows it while
/// `chkGradual` is ticked, unless its value lies above the range, as after a new choice of the
/// effect.
std::optional<EffectSlider> SizeSliderOf(const ImageEffects& effects);

/// The rows and words of the chosen effect; without one its properties are hidden.
Look LookOf(const ImageEffects& effects);

/// Applies a choice in the pick-list: empties what was typed, forgets the source of the image and
/// puts the size slider at its start. Target frame, rotation, `chkGradual` and picked color stay.
void ChooseEffect(ImageEffects& effects);

/// Applies a change of `chkGradual`: ticked, it puts the size slider at its start for Brighten.
void ChooseGradual(ImageEffects& effects);

/// Puts a picked color, given as "255,128,0", into the fields; an empty text when it was taken
/// away.
void ChooseColor(ImageEffects& effects, const Text& channels);

/// Puts a picked image into the fields, or gives the complaint about its size or name. A file that
/// is not a picture changes nothing and gives no complaint.
std::optional<Complaint> ChooseImage(ImageEffects& effects, const PickedImage& image);

/// The first failing check in order, or nothing when the wizard may finish.
std::optional<Complaint> Check(const ImageEffects& effects);

/// Puts "http://" in front of a link that begins with "www.".
void Tidy(ImageEffects& effects);

/// The hints at numbers that are none.
std::vector<Hint> HintsOf(const ImageEffects& effects);

/// The page text of the chosen effect; without code while none is chosen. Expects effects that pass
/// Check().
EffectPayload Generate(const ImageEffects& effects);

/// Chooses the effect of a pasted tag and fills its fields; for an unknown applet none is chosen.
/// With Quotes::Kept a number in quotes counts as 0, the lake's height is halved without the
/// overlap of its reflection, and the cube's color is shown but not used.
void ReadTag(ImageEffects& effects, const PastedTag& tag);

} // namespace orvane
