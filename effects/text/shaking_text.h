#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Shaking Text window; the defaults are those of a fresh window.
struct ShakingText
{
    static constexpr std::array Kinds = {EffectKind::ShakingText};
    static constexpr TextView Block = u"shake-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"txtText", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 3> Ways = {u"sideways", u"up", u"turning"};

    Text txtText;                  ///< lines of it end in CR LF
    Text cboWay = u"sideways";     ///< one of Ways
    Text txtPixels = u"3";         ///< to each side, as typed; degrees when it turns
    Text txtBurstSeconds = u"0.6"; ///< that it shakes, as typed
    Text txtPauseSeconds = u"4.4"; ///< that it rests then, as typed
    Text cboTimes = u"3";          ///< 0 is for ever
    bool chkOnHover = false;       ///< once, whenever the mouse comes
    TextLook Look;
    BlockAttributes Others;
    bool operator==(const ShakingText&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ShakingText> Shaking, class Field>
void ForEachField(Shaking& shaking, Field&& field)
{
    field(ContentField("txtText"), shaking.txtText);
    field(ChoiceField("cboWay", ShakingText::Ways), shaking.cboWay);
    field(NumberField("txtPixels", 1, 10), shaking.txtPixels);
    field(NumberField("txtBurstSeconds", 0.2, 3), shaking.txtBurstSeconds);
    field(NumberField("txtPauseSeconds", 0, 60), shaking.txtPauseSeconds);
    field(NumberField("cboTimes", 0, 10), shaking.cboTimes);
    field("chkOnHover", shaking.chkOnHover);
    ForEachField(shaking.Look, field);
    field(Secret("Others"), shaking.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const ShakingText& shaking, int page);

} // namespace orvane
