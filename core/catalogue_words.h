#pragma once

#include "core/text.h"

/// Words that several rows of the catalogue share.
namespace orvane::catalogue_rows {

inline constexpr TextView withScriptAlone =
    u"Today's browsers show this effect only with Orvane's page script.";
inline constexpr TextView withoutScript =
    u"Today's browsers show this effect as it is; it does not need Orvane's page script.";
inline constexpr TextView byItself = u"Runs in today's browsers by itself.";
inline constexpr TextView refreshToSee =
    u"<font face='arial' size=1>Click the <b>Refresh</b> button multiple times to demonstrate this "
    u"special effect.  (This text will not appear in your special effect).</font><br><br><br> ";

} // namespace orvane::catalogue_rows
