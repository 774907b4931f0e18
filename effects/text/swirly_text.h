#pragma once

#include "core/complaint.h"
#include "core/pasted_tag.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Swirly Text window; the defaults are those of a fresh window.
struct SwirlyText
{
    static constexpr std::array Kinds = {EffectKind::SwirlyText};
    static constexpr TextView Block = u"swirl-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"txtText", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 2> Directions = {u"left", u"right"};
    /// The first is that of the text's own place.
    static constexpr std::array<TextView, 4> Alignments = {u"", u"left", u"center", u"right"};

    Text txtText; ///< lines of it end in CR LF
    std::vector<Text> lstColors = {u"#c00000", u"#906000", u"#007030", u"#0050c0", u"#8000a0"};
    Text txtSeconds = u"6";      ///< of a round through the colours, as typed
    Text cboDirection = u"left"; ///< one of Directions
    bool chkLetters = false; ///< each letter has one colour at a time; not in a text with a link
    Text txtRounds = u"0";   ///< as typed; 0 is for ever
    TextLook Look;           ///< its colour does not count
    Text cboAlign;           ///< one of Alignments
    BlockAttributes Others;
    bool operator==(const SwirlyText&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<SwirlyText> Swirly, class Field>
void ForEachField(Swirly& swirly, Field&& field)
{
    field(ContentField("txtText"), swirly.txtText);
    field(ColorsField("lstColors", 3, 7), swirly.lstColors);
    field(CalmField("txtSeconds", 4, 60), swirly.txtSeconds);
    field(ChoiceField("cboDirection", SwirlyText::Directions), swirly.cboDirection);
    field("chkLetters", swirly.chkLetters);
    field(NumberField("txtRounds", 0, 20), swirly.txtRounds);
    ForEachFontField(swirly.Look, field);
    field(ChoiceField("cboAlign", SwirlyText::Alignments), swirly.cboAlign);
    field(Secret("Others"), swirly.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const SwirlyText& swirly, int page);

/// Fills what the tag of an earlier applet tells: text, font and size.
void ReadTag(SwirlyText& swirly, const PastedTag& tag);

} // namespace orvane
