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

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<TextLook> Look, class Field>
void ForEachField(Look& look, Field&& field)
{
    field("cboFont", look.cboFont);
    field(NumberField("cboFontSize", 0, 4000), look.cboFontSize);
    field(ChoiceField("cboFontStyle", textStyles), look.cboFontStyle);
    field(ColorField("cmdTextColor"), look.TextColor);
}

} // namespace orvane
