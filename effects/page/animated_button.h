#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/hints.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Animated Button window; the defaults are those of a fresh window.
struct AnimatedButton
{
    static constexpr std::array Kinds = {EffectKind::AnimatedButton};
    static constexpr TextView Block = u"button-1";
    static constexpr std::array<ControlName, 4> PageStarts = {
        "lstPictures", "lstOverPictures", "lstPressedPictures", "txtMilliseconds"};
    static constexpr int Pages = PageStarts.size();
    /// Of all three lists; the sound is one file more.
    static constexpr std::size_t MostPictures = 50;

    BlockPictures lstPictures;        ///< at rest
    Text txtDescription;              ///< of the button
    BlockPictures lstOverPictures;    ///< under the mouse; empty: as at rest
    BlockPictures lstPressedPictures; ///< empty: as under the mouse
    Text txtMilliseconds = u"200";    ///< that a picture is shown, as typed
    Text txtLink;
    Text cboTarget;
    Text txtWidth = u"0"; ///< pixels, as typed; 0 is as wide as the pictures
    Text txtPressSound;   ///< empty for none
    Text PressSoundSource;
    bool chkOnFocus = true; ///< the keyboard's focus does what the mouse does
    BlockAttributes Others;
    bool operator==(const AnimatedButton&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<AnimatedButton> Button, class Field>
void ForEachField(Button& button, Field&& field)
{
    field(ContentField("lstPictures"), button.lstPictures);
    field(ContentField("txtDescription"), button.txtDescription);
    field(ContentField("lstOverPictures"), button.lstOverPictures);
    field(ContentField("lstPressedPictures"), button.lstPressedPictures);
    field(CalmField("txtMilliseconds", 170, 10000), button.txtMilliseconds);
    field(ContentField("txtLink"), button.txtLink);
    field("cboTarget", button.cboTarget);
    field(NumberField("txtWidth", 0, 4000), button.txtWidth);
    field("txtPressSound", button.txtPressSound);
    field(SourceField("PressSoundSource"), button.PressSoundSource);
    field("chkOnFocus", button.chkOnFocus);
    field(Secret("Others"), button.Others);
}

/// The pictures, the first of which has the description and the link.
BlockContent ContentOf(const AnimatedButton& button);

/// Takes them from there.
void TakeContent(AnimatedButton& button, BlockContent content);

/// The sound of a press.
std::vector<BlockSound> SoundsOf(const AnimatedButton& button);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const AnimatedButton& button, int page);

/// The hint at a link without a name.
std::vector<Hint> HintsOf(const AnimatedButton& button);

/// Mends each field as MendField() does.
void Tidy(AnimatedButton& button);

} // namespace orvane
