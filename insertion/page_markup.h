#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace orvane {

/// A stretch of page code, which is bytes: from Begin up to but not including End, counted from 0.
struct CodeSpan
{
    std::size_t Begin = 0;
    std::size_t End = 0;
    bool operator==(const CodeSpan&) const = default;
};

/// The code of a stretch, which lies in `code`.
inline std::string_view CodeIn(std::string_view code, CodeSpan span)
{
    return code.substr(span.Begin, span.End - span.Begin);
}

/// A comment, or an open or close tag.
struct Markup
{
    CodeSpan Whole;
    std::size_t Next = 0; ///< behind it and, for a SCRIPT, TITLE and the like, behind its text
};

/// The first comment or tag that begins at or behind `from`; one of no length at the end of `code`
/// when there is none. Tags are told from comments, quoted values, the text of scripts and styles
/// as a browser does, and from what a server replaces. Expects `from` outside of a tag.
Markup NextMarkup(std::string_view code, std::size_t from);

/// Whether a tag stands at `at` that begins so, such as "<head" or "</head", its name whole.
bool IsTag(std::string_view code, std::size_t at, std::string_view start);

/// `text` from its first character on that is no blank of page code.
std::string_view WithoutBlanksInFront(std::string_view text);

/// A name and a value as they stand in a tag.
struct TagAttribute
{
    std::string_view Name;
    std::string_view Value; ///< without its quotes
};

/// Takes the next attribute off `rest`, which goes on behind a tag's name; nothing at the tag's
/// end. One that is cut off by the end of the code has no value.
std::optional<TagAttribute> NextAttribute(std::string_view& rest);

} // namespace orvane
