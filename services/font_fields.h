#pragma once

#include "core/dialogs.h"
#include "core/text.h"

#include <array>

namespace orvane {

/// The fonts that the windows offer for the text of a page.
inline constexpr std::array<TextView, 10> pageFonts = {
    u"Arial",         u"Courier", u"Courier New", u"Terminal",        u"MS Serif",
    u"MS Sans Serif", u"Symbol",  u"Modern",      u"Times New Roman", u"Wingdings"};

/// The font styles that the windows offer for the text of a page.
inline constexpr std::array<TextView, 4> fontStyles = {u"Normal", u"Bold", u"Italic",
                                                       u"Bold Italic"};

/// The three fields in which an author chooses the font of a page's text.
struct FontFields
{
    Text Font;
    Text Size;  ///< points, as typed
    Text Style; ///< one of fontStyles, or any text
    bool operator==(const FontFields&) const = default;
};

/// The CSS declarations of a font style, each with ";" in front; empty for "Normal" and for any
/// text that is not one of fontStyles.
TextView FontStyleDeclarations(TextView style);

/// The fields after the font dialog, which starts with `start`; unchanged when the author cancels.
FontFields PickFontFields(Dialogs& dialogs, const FontFields& start);

} // namespace orvane
