#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Scrolling Credits window; the defaults are those of a fresh
/// window.
struct ScrollingCredits
{
    static constexpr std::array Kinds = {EffectKind::ScrollingCredits};
    static constexpr TextView Block = u"credits-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"cboWhat", "sldrSpeed", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdBackColor"}};
    static constexpr std::array<TextView, 2> Whats = {u"text", u"page"};
    static constexpr std::array<TextView, 3> Ends = {u"stop", u"again", u"page"};

    Text cboWhat = u"text";     ///< one of Whats: what scrolls
    BlockParagraphs txtText;    ///< of a text of its own
    int sldrSpeed = 30;         ///< pixels a second
    Text txtWaitSeconds = u"1"; ///< before it begins, as typed
    Text cboAtEnd = u"stop";    ///< one of Ends
    Text txtNextPage;           ///< to which the last of them goes on
    Text txtHeight = u"240";    ///< of a text of its own, in pixels, as typed
    bool chkFadedEdges = true;  ///< of a text of its own
    bool chkTilted = false;     ///< of a text of its own: its upper end is further away
    TextLook Look;              ///< of a text of its own
    Text BackColor;             ///< of a text of its own; empty: as on the page
    BlockAttributes Others;
    bool operator==(const ScrollingCredits&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ScrollingCredits> Credits, class Field>
void ForEachField(Credits& credits, Field&& field)
{
    field(ChoiceField("cboWhat", ScrollingCredits::Whats), credits.cboWhat);
    field(ContentField("txtText"), credits.txtText);
    field(NumberField("sldrSpeed", 5, 300), credits.sldrSpeed);
    field(NumberField("txtWaitSeconds", 0, 60), credits.txtWaitSeconds);
    field(ChoiceField("cboAtEnd", ScrollingCredits::Ends), credits.cboAtEnd);
    field("txtNextPage", credits.txtNextPage);
    field(NumberField("txtHeight", 40, 4000), credits.txtHeight);
    field("chkFadedEdges", credits.chkFadedEdges);
    field("chkTilted", credits.chkTilted);
    ForEachField(credits.Look, field);
    field(ColorField("cmdBackColor"), credits.BackColor);
    field(Secret("Others"), credits.Others);
}

/// The boxes of what scrolls and of the next page are enabled where they count.
Look LookOf(const ScrollingCredits& credits);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const ScrollingCredits& credits, int page);

/// The page that follows, or -1 for the end; a page that scrolls by itself has no text to dress.
int PageAfter(const ScrollingCredits& credits, int page);

/// Mends each field as MendField() does; a page that scrolls by itself has no text.
void Tidy(ScrollingCredits& credits);

} // namespace orvane
