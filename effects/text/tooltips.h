#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "core/pick_lists.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the mouse must be over for the tooltip to appear; the numbers are the indexes of the
/// options.
enum class HoverObject
{
    None = -1,
    Words = 0,
    Image = 1,
};

/// Where the tooltip appears.
inline constexpr std::array<TextView, 2> tooltipLocations = {u"Below the mousepointer",
                                                             u"Above the mousepointer"};

/// What the author enters on the Tooltips window; the defaults are those of a fresh window.
struct Tooltips
{
    static constexpr std::array Kinds = {EffectKind::Tooltips};
    static constexpr int Pages = 3;

    Text txtTooltipText;
    Text cboFont = u"Arial";
    Text cboFontSize = Text(FontSizes[6]);
    Text cboFontStyle = u"Normal";
    Text TextColor = u"#000000"; ///< a picked color is as "rgb(255,128,0)"; so is BGColor
    Text BGColor = u"#FFFFFF";
    Text txtWidth = u"150";
    Text txtHeight = u"50";
    bool chk3D = false;
    Text cboDisplayLocation = Text(tooltipLocations[0]);
    Text txtTitleText; ///< optional
    Text cboTitleAlign = u"Left";
    HoverObject optHoverObject = HoverObject::None;
    Text txtMainText;
    Text txtImage; ///< with its folder, as Browse gave it
    bool operator==(const Tooltips&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<Tooltips> Tooltip, class Field>
void ForEachField(Tooltip& tooltip, Field&& field)
{
    field("txtTooltipText", tooltip.txtTooltipText);
    field("cboFont", tooltip.cboFont);
    field("cboFontSize", tooltip.cboFontSize);
    field("cboFontStyle", tooltip.cboFontStyle);
    field("TextColor", tooltip.TextColor);
    field("BGColor", tooltip.BGColor);
    field("txtWidth", tooltip.txtWidth);
    field("txtHeight", tooltip.txtHeight);
    field("chk3D", tooltip.chk3D);
    field("cboDisplayLocation", tooltip.cboDisplayLocation);
    field("txtTitleText", tooltip.txtTitleText);
    field("cboTitleAlign", tooltip.cboTitleAlign);
    field("optHoverObject", tooltip.optHoverObject);
    field("txtMainText", tooltip.txtMainText);
    field("txtImage", tooltip.txtImage);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const Tooltips& tooltip, int page);

/// The hints at sizes that are no numbers.
std::vector<Hint> HintsOf(const Tooltips& tooltip);

/// The tooltip's page text, with the image that must lie beside the page. Expects a tooltip that
/// passes CheckPage() on every page.
EffectPayload Generate(const Tooltips& tooltip);

} // namespace orvane
