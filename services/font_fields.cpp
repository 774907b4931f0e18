#include "services/font_fields.h"

#include "core/pick_lists.h"

namespace orvane {

namespace {

TextView StyleOf(const FontChoice& font)
{
    if (font.Bold)
        return font.Italic ? fontStyles[3] : fontStyles[1];
    return font.Italic ? fontStyles[2] : fontStyles[0];
}

} // namespace

TextView FontStyleDeclarations(TextView style)
{
    if (style == u"Bold")
        return u";font-weight:bold";
    if (style == u"Italic")
        return u";font-style:italic";
    if (style == u"Bold Italic")
        return u";font-weight:bold;font-style:italic";
    return {};
}

FontFields PickFontFields(Dialogs& dialogs, const FontFields& start)
{
    const FontChoice shown{.Name = start.Font,
                           .Size = start.Size,
                           .Bold = start.Style == u"Bold" || start.Style == u"Bold Italic",
                           .Italic = start.Style == u"Italic" || start.Style == u"Bold Italic"};
    const FontChoice chosen = dialogs.PickFont(shown);
    // A style that the dialog cannot show would not come back as it was.
    if (chosen == shown)
        return start;
    return {.Font = chosen.Name, .Size = chosen.Size, .Style = Text(StyleOf(chosen))};
}

} // namespace orvane
