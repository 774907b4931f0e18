#pragma once

#include "core/complaint.h"
#include "core/pasted_tag.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Smooth Scrolling Text Ticker window; the defaults are those of a
/// fresh window.
struct SmoothScroll
{
    static constexpr std::array Kinds = {EffectKind::SmoothScroll};
    static constexpr TextView Block = u"scroller-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"lstMessages", "cboDirection",
                                                              "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdBackColor"}};
    static constexpr std::array<TextView, 2> Directions = {u"left", u"right"};

    BlockRows lstMessages;
    Text cboDirection = u"left"; ///< one of Directions
    int sldrSpeed = 50;          ///< pixels a second
    Text txtGap = u"50";         ///< pixels behind each message, as typed
    Text txtWidth = u"0";        ///< pixels, as typed; 0 is as wide as the ticker's place
    Text txtHeight = u"0";       ///< pixels, as typed; 0 is as high as the text
    TextLook Look;
    Text BackColor; ///< empty: as on the page
    bool chkFadedEdges = false;
    bool chkPauseOnHover = true;
    Text cboTarget; ///< of all links
    BlockAttributes Others;
    bool operator==(const SmoothScroll&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<SmoothScroll> Scroll, class Field>
void ForEachField(Scroll& scroll, Field&& field)
{
    field(ContentField("lstMessages"), scroll.lstMessages);
    field(ChoiceField("cboDirection", SmoothScroll::Directions), scroll.cboDirection);
    field(NumberField("sldrSpeed", 5, 500), scroll.sldrSpeed);
    field(NumberField("txtGap", 0, 1000), scroll.txtGap);
    field(NumberField("txtWidth", 0, 4000), scroll.txtWidth);
    field(NumberField("txtHeight", 0, 4000), scroll.txtHeight);
    ForEachField(scroll.Look, field);
    field(ColorField("cmdBackColor"), scroll.BackColor);
    field("chkFadedEdges", scroll.chkFadedEdges);
    field("chkPauseOnHover", scroll.chkPauseOnHover);
    field("cboTarget", scroll.cboTarget);
    field(Secret("Others"), scroll.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const SmoothScroll& scroll, int page);

/// Fills the ticker from the tag of an earlier applet: message, direction, font, size, speed,
/// colours, width and height.
void ReadTag(SmoothScroll& scroll, const PastedTag& tag);

} // namespace orvane
