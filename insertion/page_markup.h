#pragma once

#include "core/text.h"

#include <optional>

namespace orvane {

/// A stretch of page code: from Begin up to but not including End, counted from 0.
struct CodeSpan
{
    std::size_t Begin = 0;
    std::size_t End = 0;
    bool operator==(const CodeSpan&) const = default;
};

/// A comment, or an open or close tag.
struct Markup
{
    CodeSpan Whole;
    std::size_t Next = 0; ///< behind it and, for a SCRIPT, TITLE and the like, behind its text
};

/// The first comment or tag that begins at or behind `from`; one of no length at the end of `code`
/// when there is none. Tags are told from comments, quoted values, the text of scripts and styles
/// as a browser does, and from what a server replaces. Expects `from` outside of a tag.
Markup NextMarkup(TextView code, std::size_t from);

/// Whether a tag stands at `at` that begins so, such as "<head" or "</head", its name whole.
bool IsTag(TextView code, std::size_t at, TextView start);

/// `text` from its first character on that is no blank of page code.
TextView WithoutBlanksInFront(TextView text);

/// A name and a value as they stand in a tag.
struct TagAttribute
{
    TextView Name;
    TextView Value; ///< without its quotes
};

/// Takes the next attribute off `rest`, which goes on behind a tag's name; nothing at the tag's
/// end. One that is cut off by the end of the code has no value.
std::optional<TagAttribute> NextAttribute(TextView& rest);

} // namespace orvane
