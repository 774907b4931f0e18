#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Browser Window Earthquake window; the defaults are those of a
/// fresh window.
struct Earthquake
{
    static constexpr std::array Kinds = {EffectKind::Earthquake};
    static constexpr TextView Block = u"quake-1";
    static constexpr std::array<ControlName, 1> PageStarts = {"txtPixels"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 3> Times = {u"arrival", u"click", u"both"};

    Text txtPixels = u"6";     ///< to each side, as typed
    Text txtSeconds = u"1.2";  ///< as typed
    Text cboWhen = u"arrival"; ///< one of Times
    Text txtAgainAfter = u"0"; ///< seconds, as typed; 0 is once
    BlockAttributes Others;
    bool operator==(const Earthquake&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<Earthquake> Quake, class Field>
void ForEachField(Quake& quake, Field&& field)
{
    field(CalmField("txtPixels", 1, 12, CalmBound::Most), quake.txtPixels);
    field(CalmField("txtSeconds", 0.2, 3, CalmBound::Most), quake.txtSeconds);
    field(ChoiceField("cboWhen", Earthquake::Times), quake.cboWhen);
    field(NumberField("txtAgainAfter", 0, 600), quake.txtAgainAfter);
    field(Secret("Others"), quake.Others);
}

/// Shakes that come again sooner than a calm page bears them come again after that time.
void Tidy(Earthquake& quake);

/// Says that of such shakes, beside the hints of all blocks.
std::vector<Hint> HintsOf(const Earthquake& quake);

/// The complaint that keeps the author on the page, or nothing.
std::optional<Complaint> Check(const Earthquake& quake);

} // namespace orvane
