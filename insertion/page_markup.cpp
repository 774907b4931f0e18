#include "insertion/page_markup.h"

#include "core/text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::string_view blanks = "\t\n\f\r ";

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The place behind the text that `sought` ends with, searched from `from`.
std::size_t Behind(std::string_view code, std::string_view sought, std::size_t from)
{
    const std::size_t place = code.find(sought, from);
    return place == std::string_view::npos ? code.size() : place + sought.size();
}

/// The place behind the ">" of the tag at `at`; one inside a quoted value does not end it.
std::size_t BehindTag(std::string_view code, std::size_t at)
{
    for (;;) {
        at = code.find_first_of(">=", at);
        if (at == std::string_view::npos)
            return code.size();
        if (code[at] == '>')
            return at + 1;
        at = std::min(code.find_first_not_of(blanks, at + 1), code.size());
        if (at < code.size() && (code[at] == '"' || code[at] == '\''))
            at = Behind(code, code.substr(at, 1), at + 1);
    }
}

/// Where the script that starts at `at` ends. Behind "<!--" a script may hold a whole SCRIPT
/// element as text.
std::size_t EndOfScript(std::string_view code, std::size_t at)
{
    bool isInComment = false;
    bool isInInnerScript = false;
    while ((at = isInComment ? code.find_first_of("<-", at) : code.find('<', at)) < code.size()) {
        if (code.substr(at).starts_with("<!--")) {
            isInComment = true;
        } else if (code.substr(at).starts_with("-->")) {
            isInComment = isInInnerScript = false;
        } else if (IsTag(code, at, "</script")) {
            if (!isInInnerScript)
                return at;
            isInInnerScript = false;
        } else if (isInComment && IsTag(code, at, "<script")) {
            isInInnerScript = true;
        }
        ++at;
    }
    return code.size();
}

/// The elements in whose text nothing is a tag or a comment, SCRIPT aside.
constexpr std::string_view plainTextTags[] = {"<title",  "<style",   "<textarea", "<xmp",
                                              "<iframe", "<noembed", "<noframes", "<noscript"};

std::string CloseTagOf(std::string_view tag)
{
    return Join({"</", tag.substr(1)});
}

/// Where the text ends that stands in the element whose open tag is this one, and in which nothing
/// is a tag or a comment; where the tag ends for any other element.
std::size_t EndOfPlainText(std::string_view code, CodeSpan tag)
{
    if (IsTag(code, tag.Begin, "<script"))
        return EndOfScript(code, tag.End);
    for (const std::string_view name : plainTextTags) {
        if (!IsTag(code, tag.Begin, name))
            continue;
        const std::string closeTag = CloseTagOf(name);
        std::size_t at = tag.End;
        while (at < code.size() && !IsTag(code, at, closeTag))
            at = std::min(code.find("</", at + 1), code.size());
        return at;
    }
    return tag.End;
}

} // namespace

bool IsTag(std::string_view code, std::size_t at, std::string_view start)
{
    // Asked for every tag of a page, which may be long. The start holds no signs but "<", "/" and
    // small letters.
    const std::size_t end = at + start.size();
    if (end >= code.size())
        return false;
    for (std::size_t i = 0; i < start.size(); ++i)
        if (code[at + i] != start[i] &&
            (!IsLetter(code[at + i]) || (code[at + i] | 0x20) != start[i]))
            return false;
    return std::string_view("\t\n\f\r />").find(code[end]) != std::string_view::npos;
}

bool EndsPlainText(std::string_view code, std::size_t at)
{
    return IsTag(code, at, "</script") ||
           std::any_of(std::begin(plainTextTags), std::end(plainTextTags),
                       [&](std::string_view tag) { return IsTag(code, at, CloseTagOf(tag)); });
}

Markup NextMarkup(std::string_view code, std::size_t from)
{
    std::size_t at = code.find('<', from);
    while (at < code.size()) {
        const std::string_view rest = code.substr(at);
        const std::size_t name = rest.starts_with("</") ? 2 : 1;
        if (rest.starts_with("<!--")) {
            // The dashes that open a comment may be those that close it.
            const std::size_t end = Behind(code, "-->", at);
            return {{at, end}, end};
        }
        if (name < rest.size() && IsLetter(rest[name])) {
            const CodeSpan tag{at, BehindTag(code, at)};
            return {tag, EndOfPlainText(code, tag)};
        }
        if (rest.starts_with("<%"))
            at = Behind(code, "%>", at);
        else if (rest.starts_with("<?php") || rest.starts_with("<?="))
            at = Behind(code, "?>", at);
        else
            ++at;
        at = code.find('<', at);
    }
    return {{code.size(), code.size()}, code.size()};
}

std::optional<CodeSpan> FindTag(std::string_view code, std::string_view start,
                                std::initializer_list<std::string_view> before)
{
    Markup markup = NextMarkup(code, 0);
    for (; markup.Whole.Begin < code.size(); markup = NextMarkup(code, markup.Next)) {
        const std::size_t at = markup.Whole.Begin;
        if (IsTag(code, at, start))
            return code[markup.Whole.End - 1] == '>' ? std::optional(markup.Whole) : std::nullopt;
        if (std::any_of(before.begin(), before.end(),
                        [&](std::string_view other) { return IsTag(code, at, other); }))
            return std::nullopt;
    }
    return std::nullopt;
}

std::optional<CodeSpan> HeadTag(std::string_view code)
{
    return FindTag(code, "<head", {"<body", "<frameset", "</head", "</html"});
}

std::optional<CodeSpan> BodyTag(std::string_view code)
{
    return FindTag(code, "<body");
}

std::string_view WithoutBlanksInFront(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

std::optional<TagAttribute> NextAttribute(std::string_view& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of("\t\n\f\r /"), rest.size()));
    if (rest.empty() || rest.front() == '>')
        return std::nullopt;
    // An equals sign at its start belongs to the name.
    const std::size_t end = rest.find_first_of("\t\n\f\r />=", 1);
    TagAttribute attribute{rest.substr(0, end), {}};
    rest.remove_prefix(attribute.Name.size());
    const std::string_view behind = WithoutBlanksInFront(rest);
    if (!behind.starts_with('='))
        return attribute;
    rest = WithoutBlanksInFront(behind.substr(1));
    if (!rest.starts_with('"') && !rest.starts_with('\'')) {
        attribute.Value = rest.substr(0, rest.find_first_of("\t\n\f\r >"));
        rest.remove_prefix(attribute.Value.size());
        return attribute;
    }
    const std::size_t close = rest.find(rest.front(), 1);
    if (close != std::string_view::npos)
        attribute.Value = rest.substr(1, close - 1);
    rest.remove_prefix(close == std::string_view::npos ? rest.size() : close + 1);
    return attribute;
}

} // namespace orvane
