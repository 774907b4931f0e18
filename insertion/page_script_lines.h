#pragma once

#include "insertion/page_markup.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// The calls of effects in the two events of a BODY tag, divided by semicolons.
struct EventCalls
{
    std::string OnLoad;
    std::string OnUnload;
};

/// The lines in a page that lead it to the page script.
struct PageScriptLines
{
    CodeSpan Whole;
    std::string Code;
    EventCalls Carried;
    bool IsChanged = false; ///< the author has made something else of the SCRIPT line
};

/// The first lines in the page, where a browser sees them; nothing when it has none.
std::optional<PageScriptLines> FindPageScriptLines(std::string_view page);

/// Takes all lines out of the page; gives the first ones with the calls of all.
std::optional<PageScriptLines> TakePageScriptLines(std::string& page);

} // namespace orvane
