#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Text Effects window; the defaults are those of a fresh window.
struct TextEffects
{
    static constexpr std::array Kinds = {EffectKind::TextEffects};
    static constexpr TextView Block = u"grow-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"txtText", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 5> Effects = {u"grow", u"shrink", u"wide", u"high",
                                                        u"pulse"};
    static constexpr std::array<TextView, 2> Starts = {u"seen", u"hover"};

    Text txtText;             ///< lines of it end in CR LF
    Text cboEffect = u"grow"; ///< one of Effects
    Text txtFrom = u"20";     ///< percent of its size, as typed
    Text txtTo = u"100";      ///< percent of its size, as typed
    Text txtSeconds = u"1";   ///< of one movement, as typed
    Text cboTimes = u"1";     ///< 0 is for ever
    Text cboStart = u"seen";  ///< one of Starts
    TextLook Look;
    BlockAttributes Others;
    bool operator==(const TextEffects&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<TextEffects> Effects, class Field>
void ForEachField(Effects& effects, Field&& field)
{
    field(ContentField("txtText"), effects.txtText);
    field(ChoiceField("cboEffect", TextEffects::Effects), effects.cboEffect);
    field(NumberField("txtFrom", 1, 500), effects.txtFrom);
    field(NumberField("txtTo", 1, 500), effects.txtTo);
    field(CalmField("txtSeconds", 0.1, 20), effects.txtSeconds);
    field(NumberField("cboTimes", 0, 10), effects.cboTimes);
    field(ChoiceField("cboStart", TextEffects::Starts), effects.cboStart);
    ForEachField(effects.Look, field);
    field(Secret("Others"), effects.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const TextEffects& effects, int page);

} // namespace orvane
