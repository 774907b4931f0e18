#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "core/pick_lists.h"
#include "services/hints.h"
#include "services/row_list.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// One message of the scroller.
struct ScrollerItem
{
    Text txtItem;    ///< lines end in CR LF
    Text txtItemURL; ///< empty for no link
    bool operator==(const ScrollerItem&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the order of the
/// window of one message.
template <ConstOr<ScrollerItem> Item, class Field>
void ForEachField(Item& item, Field&& field)
{
    field("txtItem", item.txtItem);
    field("txtItemURL", item.txtItemURL);
}

/// The complaint about a message without text, or nothing.
std::optional<Complaint> Check(const ScrollerItem& item);

/// The hint at an apostrophe in a message's link, which ends the text in the script.
std::vector<Hint> HintsOf(const ScrollerItem& item);

/// Puts "http://" in front of an address that begins with "www.".
void Tidy(ScrollerItem& item);

/// What the author enters on the Vertical Scroller window; the defaults are those of a fresh
/// window.
struct VerticalScroller
{
    static constexpr std::array Kinds = {EffectKind::VerticalScroller};
    static constexpr int Pages = 3;

    std::vector<ScrollerItem> Items;
    Text cboFont = u"Arial";
    Text cboFontSize = Text(FontSizes[6]);
    Text cboFontStyle = u"Normal";
    Text TextColor; ///< as "rgb(255,128,0)", like the other two; empty when none was picked
    Text LinkColor;
    Text cboTextAlign = u"Left"; ///< has no effect on the page text
    Text txtWidth = u"150";
    Text txtHeight = u"75";
    Text BGColor;
    int sldrSpeed = 90;   ///< a pixel takes 105 milliseconds less this value
    Text txtPause = u"3"; ///< seconds, as typed
    bool operator==(const VerticalScroller&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<VerticalScroller> Scroller, class Field>
void ForEachField(Scroller& scroller, Field&& field)
{
    field(Lists("lstItems", "lstLinks"), scroller.Items);
    field("cboFont", scroller.cboFont);
    field("cboFontSize", scroller.cboFontSize);
    field("cboFontStyle", scroller.cboFontStyle);
    field("cmdTextColor", scroller.TextColor);
    field("cmdLinkColor", scroller.LinkColor);
    field("cboTextAlign", scroller.cboTextAlign);
    field("txtWidth", scroller.txtWidth);
    field("txtHeight", scroller.txtHeight);
    field("cmdBGColor", scroller.BGColor);
    field("sldrSpeed", scroller.sldrSpeed);
    field("txtPause", scroller.txtPause);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const VerticalScroller& scroller, int page);

/// Puts the default colours where none was picked.
void Tidy(VerticalScroller& scroller);

/// The hints at links whose apostrophe ends the text in the script, and at numbers that are none.
std::vector<Hint> HintsOf(const VerticalScroller& scroller);

/// The scroller's page text. Expects a scroller that passes CheckPage() on every page and went
/// through Tidy().
EffectPayload Generate(const VerticalScroller& scroller);

} // namespace orvane
