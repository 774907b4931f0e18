#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Flashing Text window; the defaults are those of a fresh window.
struct FlashingText
{
    static constexpr std::array Kinds = {EffectKind::FlashingText};
    static constexpr TextView Block = u"flash-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"txtText", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {
        ColorPair{"cmdTextColor", "cmdBackColor"},
        ColorPair{"cmdSecondTextColor", "cmdSecondBackColor"}};

    Text txtText; ///< lines of it end in CR LF
    Text SecondTextColor = u"#ffffff";
    Text BackColor; ///< empty: as on the page
    Text SecondBackColor = u"#c00000";
    Text txtTimesPerSecond = u"1"; ///< as typed
    Text txtSeconds = u"5";        ///< until it stops, as typed; 0 is never
    bool chkOnHover = false;       ///< only while the mouse is over it
    TextLook Look;                 ///< its colour is the first one of the text
    BlockAttributes Others;
    bool operator==(const FlashingText&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<FlashingText> Flashing, class Field>
void ForEachField(Flashing& flashing, Field&& field)
{
    field(ContentField("txtText"), flashing.txtText);
    field(ColorField("cmdTextColor"), flashing.Look.TextColor);
    field(ColorField("cmdBackColor"), flashing.BackColor);
    field(ColorField("cmdSecondTextColor"), flashing.SecondTextColor);
    field(ColorField("cmdSecondBackColor"), flashing.SecondBackColor);
    field(CalmField("txtTimesPerSecond", 0.2, 3, CalmBound::Most), flashing.txtTimesPerSecond);
    field(NumberField("txtSeconds", 0, 600), flashing.txtSeconds);
    field("chkOnHover", flashing.chkOnHover);
    ForEachFontField(flashing.Look, field);
    field(Secret("Others"), flashing.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const FlashingText& flashing, int page);

} // namespace orvane
