#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Text Button window; the defaults are those of a fresh window.
struct TextButton
{
    static constexpr std::array Kinds = {EffectKind::TextButton};
    static constexpr TextView Block = u"textbutton-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"txtCaption", "cmdTextColor",
                                                              "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdBackColor"},
                                              ColorPair{"cmdHoverTextColor", "cmdHoverBackColor"}};

    Text txtCaption;
    Text txtHoverText; ///< under the mouse; empty: the same
    Text txtLink;
    Text cboTarget;
    Text BackColor = u"#205080";
    Text HoverTextColor = u"#ffffff";
    Text HoverBackColor = u"#a03010";
    TextLook Look{.TextColor = u"#ffffff"};
    Text txtCorners = u"6"; ///< radius in pixels, as typed
    Text txtBorder = u"0";  ///< pixels, as typed
    bool chkShadow = true;
    Text txtWidth = u"0"; ///< pixels, as typed; 0 is as wide as the text
    BlockAttributes Others;
    bool operator==(const TextButton&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<TextButton> Button, class Field>
void ForEachField(Button& button, Field&& field)
{
    field(ContentField("txtCaption"), button.txtCaption);
    field("txtHoverText", button.txtHoverText);
    field(ContentField("txtLink"), button.txtLink);
    field("cboTarget", button.cboTarget);
    field(ColorField("cmdTextColor"), button.Look.TextColor);
    field(ColorField("cmdBackColor"), button.BackColor);
    field(ColorField("cmdHoverTextColor"), button.HoverTextColor);
    field(ColorField("cmdHoverBackColor"), button.HoverBackColor);
    ForEachFontField(button.Look, field);
    field(NumberField("txtCorners", 0, 100), button.txtCorners);
    field(NumberField("txtBorder", 0, 20), button.txtBorder);
    field("chkShadow", button.chkShadow);
    field(NumberField("txtWidth", 0, 4000), button.txtWidth);
    field(Secret("Others"), button.Others);
}

/// The link with its text.
BlockContent ContentOf(const TextButton& button);

/// Takes them from there.
void TakeContent(TextButton& button, BlockContent content);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const TextButton& button, int page);

/// Mends each field as MendField() does.
void Tidy(TextButton& button);

} // namespace orvane
