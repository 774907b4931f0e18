#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace orvane {

/// A stretch of page code, in bytes: from Begin up to but not including End, counted from 0.
struct CodeSpan
{
    std::size_t Begin = 0;
    std::size_t End = 0;
    bool operator==(const CodeSpan&) const = default;
};

/// The part of `code` in a stretch. Expects one that lies inside `code`.
inline std::string_view CodeIn(std::string_view code, CodeSpan span)
{
    return code.substr(span.Begin, span.End - span.Begin);
}

/// A comment, an open tag or a close tag.
struct Markup
{
    CodeSpan Whole;
    std::size_t Next = 0; ///< where to go on: behind it and, for a SCRIPT or TITLE, its text
};

/// The first comment or tag that begins at or behind `from`; an empty one at the end of `code` when
/// there is none. As in a browser, nothing inside a comment, a quoted value, a script or a style is
/// a tag; neither is what stands in server code ("<% %>", "<?php ?>"). Expects `from` outside of a
/// tag.
Markup NextMarkup(std::string_view code, std::size_t from);

/// Whether a tag begins at `at` whose start, up to the end of its name, is `start`, such as "<head"
/// or "</head", in upper or lower case.
bool IsTag(std::string_view code, std::size_t at, std::string_view start);

/// Whether a close tag begins at `at` of an element in whose text nothing is a tag or a comment, as
/// a SCRIPT.
bool EndsPlainText(std::string_view code, std::size_t at);

/// The first tag whose start is `start`, as IsTag() has it; nothing when one of `before` or the end
/// of the code comes first, or when the tag has no end.
std::optional<CodeSpan> FindTag(std::string_view code, std::string_view start,
                                std::initializer_list<std::string_view> before = {});

/// The HEAD tag as a browser takes it: one inside of the page's body counts for nothing.
std::optional<CodeSpan> HeadTag(std::string_view code);

/// The BODY tag as a browser takes it.
std::optional<CodeSpan> BodyTag(std::string_view code);

/// `text` without the white space at its start: spaces, tabs, line feeds, form feeds and carriage
/// returns.
std::string_view WithoutBlanksInFront(std::string_view text);

/// A name and a value as they stand in a tag.
struct TagAttribute
{
    std::string_view Name;
    std::string_view Value; ///< without its quotes
};

/// Removes the next attribute from the front of `rest`, which begins behind a tag's name, and gives
/// it; nothing at the end of the tag. A quoted value without its closing quote is empty.
std::optional<TagAttribute> NextAttribute(std::string_view& rest);

} // namespace orvane
