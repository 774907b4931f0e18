#pragma once

#include "core/dialogs.h"
#include "core/text.h"

namespace orvane {

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
