#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "core/payload.h"
#include "services/block_fields.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the window of Web Page Transitions; the defaults are those of a fresh
/// window.
struct PageTransitions
{
    static constexpr std::array Kinds = {EffectKind::PageTransitions};
    static constexpr TextView Block = u"transitions-1";
    static constexpr std::array<ControlName, 1> PageStarts = {"cboArrival"};
    static constexpr int Pages = PageStarts.size();
    static constexpr TextView None = u"none";
    /// None, then the numbers of RevealTransitions.
    static constexpr std::array<TextView, 25> Transitions = {
        None,  u"0",  u"1",  u"2",  u"3",  u"4",  u"5",  u"6",  u"7",  u"8",  u"9",  u"10", u"11",
        u"12", u"13", u"14", u"15", u"16", u"17", u"18", u"19", u"20", u"21", u"22", u"23"};

    Text cboArrival = u"3";       ///< one of Transitions: how the page comes
    Text cboLeaving = Text(None); ///< one of Transitions: how the page before it goes
    Text txtSeconds = u"0.8";     ///< of each of the two, as typed
    bool chkElsewhere = true;     ///< a cover in browsers that have no page transitions
    Text CoverColor = u"#ffffff";
    BlockAttributes Others;
    bool operator==(const PageTransitions&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<PageTransitions> Transitions, class Field>
void ForEachField(Transitions& transitions, Field&& field)
{
    field(ChoiceField("cboArrival", PageTransitions::Transitions), transitions.cboArrival);
    field(ChoiceField("cboLeaving", PageTransitions::Transitions), transitions.cboLeaving);
    field(CalmField("txtSeconds", 0.2, 3), transitions.txtSeconds);
    field("chkElsewhere", transitions.chkElsewhere);
    field(ColorField("cmdCoverColor"), transitions.CoverColor);
    field(Secret("Others"), transitions.Others);
}

/// The cover is enabled for an arrival, its colour where there is one.
Look LookOf(const PageTransitions& transitions);

/// The complaint that keeps the author on the page, or nothing.
std::optional<Complaint> Check(const PageTransitions& transitions);

/// The style and the script for the HEAD; the style has the fields as a block's root has. Expects
/// transitions that pass Check() and went through Tidy().
EffectPayload Generate(const PageTransitions& transitions);

} // namespace orvane
