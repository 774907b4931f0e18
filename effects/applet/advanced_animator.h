#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "services/image_list.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Advanced Animator window; the defaults are those of a fresh
/// window.
struct AdvancedAnimator
{
    std::vector<ImageRow> Rows;
    Text AnimationWidth;  ///< pixels, as typed
    Text AnimationHeight; ///< pixels, as typed
    Text LoopCount = u"0 - Infinite";
    Text BackgroundColor; ///< red, green and blue as "255,128,0"; empty when none was picked
    bool operator==(const AdvancedAnimator&) const = default;
};

/// The stored text of a picked colour, packed as CColor::RGBColor is: its channels as decimal
/// texts, joined by commas.
Text BackgroundOf(std::int32_t packedColor);

/// The first failing check in order, or nothing when the wizard may finish.
std::optional<Complaint> Check(const AdvancedAnimator& animator);

/// The animation's page text, with the collected files that must lie beside the page. Expects an
/// animator that passes Check().
EffectPayload Generate(const AdvancedAnimator& animator, const RequiredFiles& required);

/// The animator of a pasted tag. `appletText` is the eight letters behind CODE=: the tag of the
/// earlier applet gives its size and loop count alone. At most 31 images are read.
AdvancedAnimator ReadAdvancedAnimator(TextView pasted, TextView appletText);

} // namespace orvane
