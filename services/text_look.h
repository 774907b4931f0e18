#pragma once

#include "core/fields.h"

#include <array>

namespace orvane {

/// How a block's text looks, in four fields that are the same everywhere. What is empty or 0 is as
/// on the page.
struct TextLook
{
    Text cboFont;            ///< a family, or several with commas between them
    Text cboFontSize = u"0"; ///< pixels, as typed
    Text cboFontStyle;       ///< one of textStyles
    Text TextColor;
    bool operator==(const TextLook&) const = default;
};

/// The styles of a text, as blocks write them; the empty one is that of the page.
inline constexpr std::array<TextView, 5> textStyles = {u"", u"plain", u"bold", u"italic",
                                                       u"bold italic"};

/// Calls `field` with the names and the fields of a look without its colour, which such an effect
/// has among others or not at all.
template <ConstOr<TextLook> Look, class Field>
void ForEachFontField(Look& look, Field&& field)
{
    field("cboFont", look.cboFont);
    field(NumberField("cboFontSize", 0, 4000), look.cboFontSize);
    field(ChoiceField("cboFontStyle", textStyles), look.cboFontStyle);
}

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<TextLook> Look, class Field>
void ForEachField(Look& look, Field&& field)
{
    ForEachFontField(look, field);
    field(ColorField("cmdTextColor"), look.TextColor);
}

/// The places of a text between two edges; where a field can be empty, it is as on the page then.
inline constexpr std::array<TextView, 3> textAlignments = {u"left", u"center", u"right"};

} // namespace orvane
