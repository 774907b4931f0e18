#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "core/pick_lists.h"

#include <optional>

namespace orvane {

/// What the author enters on the Typewriter Text window; the defaults are those of a fresh window.
struct TypewriterText
{
    bool ReadFromFile = false; ///< the text lies in `TextFile`, else it is `TypedText`
    Text TypedText;            ///< lines end in CR LF
    Text TextFile;             ///< without its folder
    Text FontName = Text(AppletFonts[0]);
    Text FontSize = Text(FontSizes[6]); ///< points, as typed
    bool Bold = false;
    bool Italic = false;
    Text TextColor;    ///< an entry of BasicColors, or channels as "255,128,0"
    Text AppletWidth;  ///< pixels, as typed
    Text AppletHeight; ///< pixels, as typed
    int Speed = 250;   ///< 1 for slow to 500 for fast
    Text Cycles;       ///< an entry of CycleCounts, or any text that a number leads
    Text BackColor;    ///< as TextColor
    Text BackImage;    ///< without its folder
    Text LinkURL;
    RequiredFiles Required; ///< the sources of `BackImage` and `TextFile` picked so far
    bool operator==(const TypewriterText&) const = default;
};

/// Where the sources of the two files are recorded.
inline constexpr std::size_t typewriterBackImageSlot = 0;
inline constexpr std::size_t typewriterTextFileSlot = 1;

/// The bounds of `Speed`.
inline constexpr int slowestTypewriter = 1;
inline constexpr int fastestTypewriter = 500;

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<TypewriterText> Typewriter, class Field>
void ForEachField(Typewriter& typewriter, Field&& field)
{
    field("ReadFromFile", typewriter.ReadFromFile);
    field("TypedText", typewriter.TypedText);
    field("TextFile", typewriter.TextFile);
    field("FontName", typewriter.FontName);
    field("FontSize", typewriter.FontSize);
    field("Bold", typewriter.Bold);
    field("Italic", typewriter.Italic);
    field("TextColor", typewriter.TextColor);
    field("AppletWidth", typewriter.AppletWidth);
    field("AppletHeight", typewriter.AppletHeight);
    field("Speed", typewriter.Speed);
    field("Cycles", typewriter.Cycles);
    field("BackColor", typewriter.BackColor);
    field("BackImage", typewriter.BackImage);
    field("LinkURL", typewriter.LinkURL);
    field("Required", typewriter.Required);
}

/// What Next refuses on the first page, and Done on the last one; nothing stands in the way of
/// leaving the second.
std::optional<Complaint> CheckPage(const TypewriterText& typewriter, int page);

/// What the author is told who leaves a size field with a value below 1 in it; an empty one is let
/// be.
std::optional<Complaint> CheckPositive(TextView value);

/// Leads a link that begins with "www." by its scheme.
void Tidy(TypewriterText& typewriter);

/// The typewriter's page text. Expects a typewriter that passes CheckPage().
EffectPayload Generate(const TypewriterText& typewriter);

/// Fills the typewriter from a pasted tag. With the quotes kept it looks for what an earlier
/// applet's tag holds, so that text and colour of its own tags stay empty, and takes the tag's
/// delay for the speed; with the quotes taken off it turns its own tag back into its fields.
void ReadTag(TypewriterText& typewriter, const PastedTag& tag);

} // namespace orvane
