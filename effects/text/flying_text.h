#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Flying Text window; the defaults are those of a fresh window.
struct FlyingText
{
    static constexpr std::array Kinds = {EffectKind::FlyingText};
    static constexpr TextView Block = u"flying-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"txtText", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 5> Sides = {u"left", u"right", u"above", u"below",
                                                      u"all"};
    static constexpr std::array<TextView, 3> Paths = {u"straight", u"arc", u"spiral"};

    Text txtText;                 ///< lines of it end in CR LF
    Text cboFrom = u"left";       ///< one of Sides
    Text cboPath = u"straight";   ///< one of Paths
    Text txtLetterPause = u"100"; ///< milliseconds from letter to letter, as typed
    Text txtFlightSeconds = u"1"; ///< of each letter, as typed
    Text txtAgainAfter = u"0";    ///< seconds until it flies again, as typed; 0: it stays
    TextLook Look;
    BlockAttributes Others;
    bool operator==(const FlyingText&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<FlyingText> Flying, class Field>
void ForEachField(Flying& flying, Field&& field)
{
    field(ContentField("txtText"), flying.txtText);
    field(ChoiceField("cboFrom", FlyingText::Sides), flying.cboFrom);
    field(ChoiceField("cboPath", FlyingText::Paths), flying.cboPath);
    field(NumberField("txtLetterPause", 0, 2000), flying.txtLetterPause);
    field(NumberField("txtFlightSeconds", 0.2, 5), flying.txtFlightSeconds);
    field(NumberField("txtAgainAfter", 0, 600), flying.txtAgainAfter);
    ForEachField(flying.Look, field);
    field(Secret("Others"), flying.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const FlyingText& flying, int page);

} // namespace orvane
