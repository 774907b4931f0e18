#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "services/hints.h"
#include "services/picked_image.h"
#include "services/row_list.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Image Fade window; the defaults are those of a fresh window.
struct ImageFade
{
    static constexpr std::array Kinds = {EffectKind::ImageFade};
    static constexpr int Pages = 1;

    std::vector<Text> FadeImages; ///< without their folders
    std::vector<Text> FadeLinks;  ///< one for each image, empty for no link
    Text FadePause = u"1";        ///< seconds, as typed
    int FadeSpeed = 40;           ///< 10 for slow to 160 for fast
    Text FadeTarget;
    Text FadeWidth; ///< of the first image; empty while there is none
    Text FadeHeight;
    RequiredFiles Required; ///< the source of each image at its row
    bool operator==(const ImageFade&) const = default;
};

/// The bounds of `FadeSpeed`.
inline constexpr int slowestFade = 10;
inline constexpr int fastestFade = 160;

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ImageFade> Fade, class Field>
void ForEachField(Fade& fade, Field&& field)
{
    field("FadeImages", fade.FadeImages);
    field("FadeLinks", fade.FadeLinks);
    field("FadePause", fade.FadePause);
    field("FadeSpeed", fade.FadeSpeed);
    field("FadeTarget", fade.FadeTarget);
    field("FadeWidth", fade.FadeWidth);
    field("FadeHeight", fade.FadeHeight);
    field("Required", fade.Required);
}

/// What the author is told when a command on the list finds no row to work on.
inline constexpr RowListWords fadeWords = {
    .EditEmpty = u"Select an image from the list and then click the 'Link to URL' button.",
    .EditNone = u"Select an image from the list and then click the 'Link to URL' button.",
    .RemoveEmpty = u"Select an image from the list in order to remove it.",
    .RemoveNone = u"Select an image from the list in order to remove it.",
    .CannotMoveUp = u"Select an item in the Images list.  You cannot move the first image upward.",
    .CannotMoveDown =
        u"Select an item in the Images list.  You cannot move the last image downward.",
};

/// Adds a picked image behind the others, or gives the complaint about its name or size: all images
/// must have the size of the first. A file that is not a picture adds nothing and gives no
/// complaint.
std::optional<Complaint> AddImage(ImageFade& fade, const PickedImage& image);

/// What the fade knew of an image beside its two texts.
struct ForgottenImage
{
    Text Source;
    Text Width;
    Text Height;
};

/// Removes the source of an image that was removed from both lists at `row`, and the size when no
/// image is left; gives both.
ForgottenImage ForgetImage(ImageFade& fade, std::size_t row);

/// Takes back what ForgetImage() gave of an image that was put back into both lists at `row`.
void RecallImage(ImageFade& fade, std::size_t row, const ForgottenImage& image);

/// Moves the source of an image that was moved from row `from` to row `to`.
void MoveSource(ImageFade& fade, std::size_t from, std::size_t to);

/// The complaint about an empty link, or nothing.
std::optional<Complaint> CheckFadeLink(TextView link);

/// The complaint about too few images, or nothing when the wizard may finish.
std::optional<Complaint> Check(const ImageFade& fade);

/// The hint at a pause that is no number, or that the applet cannot wait.
std::vector<Hint> HintsOf(const ImageFade& fade);

/// The fade's page text. Expects a fade that passes Check().
EffectPayload Generate(const ImageFade& fade);

/// Fills pause, speed and target from a tag whose parameter names have no quotes, and forgets the
/// recorded files; images are not read. The tags that Generate() gives have quotes there, so that
/// they give a pause of 0, the slowest speed and no target.
void ReadTag(ImageFade& fade, const PastedTag& tag);

} // namespace orvane
