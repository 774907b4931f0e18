#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Mouse Cursor Trail window; the defaults are those of a fresh
/// window.
struct CursorTrail
{
    static constexpr std::array Kinds = {EffectKind::CursorTrail};
    static constexpr int Pages = 1;

    Text txtImage;  ///< with its folder, as Browse gave it
    int Slider = 5; ///< images in the trail, 1 to 20
    bool operator==(const CursorTrail&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<CursorTrail> Trail, class Field>
void ForEachField(Trail& trail, Field&& field)
{
    field("txtImage", trail.txtImage);
    field("Slider", trail.Slider);
}

/// The complaint about a missing image, or nothing when the wizard may finish.
std::optional<Complaint> Check(const CursorTrail& trail);

/// The hint at quotes in the name of the image, which a script takes.
std::vector<Hint> HintsOf(const CursorTrail& trail);

/// The trail's page text, with the image that must lie beside the page. Expects a trail that passes
/// Check().
EffectPayload Generate(const CursorTrail& trail);

} // namespace orvane
