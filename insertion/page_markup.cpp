#include "insertion/page_markup.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr TextView blanks = u"\t\n\f\r ";

bool IsLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// The place behind the text that `sought` ends with, searched from `from`.
std::size_t Behind(TextView code, TextView sought, std::size_t from)
{
    const std::size_t place = code.find(sought, from);
    return place == TextView::npos ? code.size() : place + sought.size();
}

/// The place behind the ">" of the tag at `at`; one inside a quoted value does not end it.
std::size_t BehindTag(TextView code, std::size_t at)
{
    for (;;) {
        at = code.find_first_of(u">=", at);
        if (at == TextView::npos)
            return code.size();
        if (code[at] == u'>')
            return at + 1;
        at = std::min(code.find_first_not_of(blanks, at + 1), code.size());
        if (at < code.size() && (code[at] == u'"' || code[at] == u'\''))
            at = Behind(code, code.substr(at, 1), at + 1);
    }
}

/// Where the script that starts at `at` ends. Behind "<!--" a script may hold a whole SCRIPT
/// element as text.
std::size_t EndOfScript(TextView code, std::size_t at)
{
    bool isInComment = false;
    bool isInInnerScript = false;
    for (; at < code.size(); ++at) {
        if (code.substr(at).starts_with(u"<!--")) {
            isInComment = true;
        } else if (code.substr(at).starts_with(u"-->")) {
            isInComment = isInInnerScript = false;
        } else if (IsTag(code, at, u"</script")) {
            if (!isInInnerScript)
                return at;
            isInInnerScript = false;
        } else if (isInComment && IsTag(code, at, u"<script")) {
            isInInnerScript = true;
        }
    }
    return at;
}

/// Where the text ends that stands in the element whose open tag is this one, and in which nothing
/// is a tag or a comment; where the tag ends for any other element.
std::size_t EndOfPlainText(TextView code, CodeSpan tag)
{
    constexpr TextView plainTextTags[] = {u"<title",  u"<style",   u"<textarea", u"<xmp",
                                          u"<iframe", u"<noembed", u"<noframes", u"<noscript"};
    if (IsTag(code, tag.Begin, u"<script"))
        return EndOfScript(code, tag.End);
    for (const TextView name : plainTextTags) {
        if (!IsTag(code, tag.Begin, name))
            continue;
        const Text closeTag = Join({u"</", name.substr(1)});
        std::size_t at = tag.End;
        while (at < code.size() && !IsTag(code, at, closeTag))
            at = std::min(code.find(u"</", at + 1), code.size());
        return at;
    }
    return tag.End;
}

} // namespace

bool IsTag(TextView code, std::size_t at, TextView start)
{
    const std::size_t end = at + start.size();
    return StartsWithIgnoringCase(code.substr(at), start) && end < code.size() &&
           TextView(u"\t\n\f\r />").find(code[end]) != TextView::npos;
}

Markup NextMarkup(TextView code, std::size_t from)
{
    std::size_t at = code.find(u'<', from);
    while (at < code.size()) {
        const TextView rest = code.substr(at);
        const std::size_t name = rest.starts_with(u"</") ? 2 : 1;
        if (rest.starts_with(u"<!--")) {
            // The dashes that open a comment may be those that close it.
            const std::size_t end = Behind(code, u"-->", at);
            return {{at, end}, end};
        }
        if (name < rest.size() && IsLetter(rest[name])) {
            const CodeSpan tag{at, BehindTag(code, at)};
            return {tag, EndOfPlainText(code, tag)};
        }
        if (rest.starts_with(u"<%"))
            at = Behind(code, u"%>", at);
        else if (rest.starts_with(u"<?php") || rest.starts_with(u"<?="))
            at = Behind(code, u"?>", at);
        else
            ++at;
        at = code.find(u'<', at);
    }
    return {{code.size(), code.size()}, code.size()};
}

TextView WithoutBlanksInFront(TextView text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

std::optional<TagAttribute> NextAttribute(TextView& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(u"\t\n\f\r /"), rest.size()));
    if (rest.empty() || rest.front() == u'>')
        return std::nullopt;
    // An equals sign at its start belongs to the name.
    const std::size_t end = rest.find_first_of(u"\t\n\f\r />=", 1);
    TagAttribute attribute{rest.substr(0, end), {}};
    rest.remove_prefix(attribute.Name.size());
    const TextView behind = WithoutBlanksInFront(rest);
    if (!behind.starts_with(u'='))
        return attribute;
    rest = WithoutBlanksInFront(behind.substr(1));
    if (!rest.starts_with(u'"') && !rest.starts_with(u'\'')) {
        attribute.Value = rest.substr(0, rest.find_first_of(u"\t\n\f\r >"));
        rest.remove_prefix(attribute.Value.size());
        return attribute;
    }
    const std::size_t close = rest.find(rest.front(), 1);
    if (close != TextView::npos)
        attribute.Value = rest.substr(1, close - 1);
    rest.remove_prefix(close == TextView::npos ? rest.size() : close + 1);
    return attribute;
}

} // namespace orvane
