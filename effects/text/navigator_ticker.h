#pragma once

#include "core/complaint.h"
#include "core/pasted_tag.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Navigator Ticker window; the defaults are those of a fresh window.
struct NavigatorTicker
{
    static constexpr std::array Kinds = {EffectKind::NavigatorTicker};
    static constexpr TextView Block = u"navigator-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"lstMessages", "cboDirection",
                                                              "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdBackColor"}};
    static constexpr std::array<TextView, 2> Directions = {u"left", u"right"};

    ColoredRows lstMessages;
    Text cboDirection = u"left"; ///< one of Directions
    int sldrSpeed = 50;          ///< pixels a second
    Text txtSeparator = u"•";    ///< between two messages
    Text txtWidth = u"0";        ///< pixels, as typed; 0 is as wide as the ticker's place
    TextLook Look;
    Text BackColor; ///< empty: as on the page
    bool chkPauseOnHover = true;
    Text cboTarget; ///< of all links
    BlockAttributes Others;
    bool operator==(const NavigatorTicker&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<NavigatorTicker> Ticker, class Field>
void ForEachField(Ticker& ticker, Field&& field)
{
    field(ContentField("lstMessages"), ticker.lstMessages);
    field(ChoiceField("cboDirection", NavigatorTicker::Directions), ticker.cboDirection);
    field(NumberField("sldrSpeed", 5, 500), ticker.sldrSpeed);
    field("txtSeparator", ticker.txtSeparator);
    field(NumberField("txtWidth", 0, 4000), ticker.txtWidth);
    ForEachField(ticker.Look, field);
    field(ColorField("cmdBackColor"), ticker.BackColor);
    field("chkPauseOnHover", ticker.chkPauseOnHover);
    field("cboTarget", ticker.cboTarget);
    field(Secret("Others"), ticker.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const NavigatorTicker& ticker, int page);

/// Hints at colours that are hard to read, those of the messages too.
std::vector<Hint> HintsOf(const NavigatorTicker& ticker);

/// Fills what the tag of an earlier applet tells: messages with their links, speed, width and
/// colours.
void ReadTag(NavigatorTicker& ticker, const PastedTag& tag);

} // namespace orvane
