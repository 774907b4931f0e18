#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "services/hints.h"
#include "services/image_list.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Advanced Animator window; the defaults are those of a fresh
/// window.
struct AdvancedAnimator
{
    static constexpr std::array Kinds = {EffectKind::AdvancedAnimator};
    static constexpr int Pages = 1;

    std::vector<ImageRow> Rows;
    Text AnimationWidth;  ///< pixels, as typed
    Text AnimationHeight; ///< pixels, as typed
    Text LoopCount = u"0 - Infinite";
    Text BackgroundColor;   ///< red, green and blue as "255,128,0"; empty when none was picked
    RequiredFiles Required; ///< the images and sounds picked so far
    bool operator==(const AdvancedAnimator&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<AdvancedAnimator> Animator, class Field>
void ForEachField(Animator& animator, Field&& field)
{
    field("List1", animator.Rows);
    field("Text20", animator.AnimationWidth);
    field("Text21", animator.AnimationHeight);
    field("Combo3", animator.LoopCount);
    field("Label16", animator.BackgroundColor);
}

/// The first failing check in order, or nothing when the wizard may finish.
std::optional<Complaint> Check(const AdvancedAnimator& animator);

/// The hints at numbers that are none.
std::vector<Hint> HintsOf(const AdvancedAnimator& animator);

/// The animation's page text, with the collected files that must lie beside the page. Expects an
/// animator that passes Check().
EffectPayload Generate(const AdvancedAnimator& animator);

/// Fills the animator from a pasted tag. From the tag of the earlier applet, only size and loop
/// count are read. At most 31 images are read with Quotes::Kept, all of them with Quotes::TakenOff.
void ReadTag(AdvancedAnimator& animator, const PastedTag& tag);

} // namespace orvane
