#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "core/pick_lists.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Typewriter Text window; the defaults are those of a fresh window.
struct TypewriterText
{
    static constexpr std::array Kinds = {EffectKind::TypewriterText};
    static constexpr int Pages = 3;

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

/// The slots in which the sources of the two files are recorded.
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
}

/// The row of the text or of its file.
Look LookOf(const TypewriterText& typewriter);

/// The complaint that keeps the author on a page, counted from 0, or nothing; the second page has
/// none.
std::optional<Complaint> CheckPage(const TypewriterText& typewriter, int page);

/// The complaint about a size field with a value below 1, or nothing; an empty field gives none.
std::optional<Complaint> CheckPositive(TextView value);

/// Puts "http://" in front of a link that begins with "www.".
void Tidy(TypewriterText& typewriter);

/// The hints at numbers that are none.
std::vector<Hint> HintsOf(const TypewriterText& typewriter);

/// The typewriter's page text. Expects a typewriter that passes CheckPage() on every page.
EffectPayload Generate(const TypewriterText& typewriter);

/// Fills the typewriter from a pasted tag. With Quotes::Kept the tag is read as one of an earlier
/// applet: of a tag that Generate() gives, text and colour stay empty, and SPEED is taken as the
/// speed although it is a delay. With Quotes::TakenOff such a tag gives its fields back.
void ReadTag(TypewriterText& typewriter, const PastedTag& tag);

} // namespace orvane
