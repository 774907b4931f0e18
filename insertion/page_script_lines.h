#pragma once

#include "core/text.h"
#include "insertion/page_markup.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// The name of the page script, the file beside a page that makes its effects run in today's
/// browsers.
inline constexpr TextView pageScriptFile = u"orvane.js";

/// Calls of effects in the two events of a BODY tag, with semicolons between them.
struct EventCalls
{
    std::string OnLoad;
    std::string OnUnload;
};

/// The lines by which a page loads the page script.
struct PageScriptLines
{
    CodeSpan Whole;
    std::string Code;       ///< the lines themselves
    EventCalls Carried;     ///< the calls in the attributes of the SCRIPT tag
    bool IsChanged = false; ///< the SCRIPT tag has something that this program does not write
};

/// The lines as this program writes them, each byte of the calls one character; without calls they
/// are those that an author inserts by hand.
Text LinesOfPageScript(const EventCalls& calls = {});

/// The first such lines at or behind `from`, outside of comments and scripts; nothing when there
/// are none. Expects `from` outside of a tag.
std::optional<PageScriptLines> FindPageScriptLines(std::string_view page, std::size_t from = 0);

/// Takes all such lines out of the page and gives the first ones, with the calls of all; nothing
/// when there are none.
std::optional<PageScriptLines> TakePageScriptLines(std::string& page);

} // namespace orvane
