#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "services/block_fields.h"
#include "services/hints.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Color Scrollbars window; the defaults are those of a fresh window.
struct ColorScrollbars
{
    static constexpr std::array Kinds = {EffectKind::ColorScrollbars};
    static constexpr TextView Block = u"scrollbars-1";
    static constexpr std::array<ControlName, 1> PageStarts = {"cmdHandleColor"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 2> Thicknesses = {u"auto", u"thin"};
    static constexpr std::array<TextView, 2> Places = {u"page", u"all"};

    Text HandleColor = u"#336699";
    Text TrackColor = u"#dde6ee";
    Text cboThickness = u"auto"; ///< one of Thicknesses
    Text cboWhere = u"page";     ///< one of Places: the page alone, or all its boxes as well
    Text HoverColor; ///< of the handle under the mouse, in older browsers alone; empty: the same
    BlockAttributes Others;
    bool operator==(const ColorScrollbars&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ColorScrollbars> Bars, class Field>
void ForEachField(Bars& bars, Field&& field)
{
    field(ColorField("cmdHandleColor"), bars.HandleColor);
    field(ColorField("cmdTrackColor"), bars.TrackColor);
    field(ChoiceField("cboThickness", ColorScrollbars::Thicknesses), bars.cboThickness);
    field(ChoiceField("cboWhere", ColorScrollbars::Places), bars.cboWhere);
    field(ColorField("cmdHoverColor"), bars.HoverColor);
    field(Secret("Others"), bars.Others);
}

/// The complaint about a colour that is missing, or nothing when the wizard may finish.
std::optional<Complaint> Check(const ColorScrollbars& bars);

/// The hints at colours of the handle that are hard to tell from the track.
std::vector<Hint> HintsOf(const ColorScrollbars& bars);

/// The style for the HEAD, whose root has the fields as a block's has. Expects scrollbars that pass
/// Check() and went through Tidy().
EffectPayload Generate(const ColorScrollbars& bars);

} // namespace orvane
