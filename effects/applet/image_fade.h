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

/// One image of the fade.
struct FadeImage
{
    Text FileName; ///< without its folder
    Text txtURL;   ///< where it leads; empty for no link
    Text Source;   ///< full path; empty where it is not known
    bool operator==(const FadeImage&) const = default;
};

/// Calls `field` with the name of each field and the field; the link alone has a control in the
/// window of one image.
template <ConstOr<FadeImage> Image, class Field>
void ForEachField(Image& image, Field&& field)
{
    field("FileName", image.FileName);
    field("txtURL", image.txtURL);
    field("Source", image.Source);
}

/// The complaint about an empty link, or nothing.
std::optional<Complaint> Check(const FadeImage& image);

/// Puts "http://" in front of a link that begins with "www.".
void Tidy(FadeImage& image);

/// What the author enters on the Image Fade window; the defaults are those of a fresh window.
struct ImageFade
{
    static constexpr std::array Kinds = {EffectKind::ImageFade};
    static constexpr int Pages = 1;

    std::vector<FadeImage> Images;
    Text FadePause = u"1"; ///< seconds, as typed
    int FadeSpeed = 40;    ///< 10 for slow to 160 for fast
    Text FadeTarget;
    Text FadeWidth; ///< of the first image; empty while there is none
    Text FadeHeight;
    bool operator==(const ImageFade&) const = default;
};

/// The bounds of `FadeSpeed`.
inline constexpr int slowestFade = 10;
inline constexpr int fastestFade = 160;

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ImageFade> Fade, class Field>
void ForEachField(Fade& fade, Field&& field)
{
    field(Lists("FadeImages", "FadeLinks", "FadeSources"), fade.Images);
    field("FadePause", fade.FadePause);
    field("FadeSpeed", fade.FadeSpeed);
    field("FadeTarget", fade.FadeTarget);
    field("FadeWidth", fade.FadeWidth);
    field("FadeHeight", fade.FadeHeight);
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

/// The complaint about too few images, or nothing when the wizard may finish.
std::optional<Complaint> Check(const ImageFade& fade);

/// The hint at a pause that is no number, or that the applet cannot wait.
std::vector<Hint> HintsOf(const ImageFade& fade);

/// The fade's page text. Expects a fade that passes Check().
EffectPayload Generate(const ImageFade& fade);

/// Fills pause, speed and target from a tag whose parameter names have no quotes, and forgets where
/// the images lie; images are not read. The tags that Generate() gives have quotes there, so that
/// they give a pause of 0, the slowest speed and no target.
void ReadTag(ImageFade& fade, const PastedTag& tag);

} // namespace orvane
