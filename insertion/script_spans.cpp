#include "insertion/script_spans.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr TextView blanks = u"\t\n\f\r ";

bool IsLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// Whether a tag stands at `at` that begins so, its name whole.
bool IsTag(TextView code, std::size_t at, TextView start)
{
    const std::size_t end = at + start.size();
    return StartsWithIgnoringCase(code.substr(at), start) && end < code.size() &&
           TextView(u"\t\n\f\r />").find(code[end]) != TextView::npos;
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

} // namespace

CodeSpan NextScript(TextView code, std::size_t from)
{
    std::size_t at = code.find(u'<', from);
    while (at < code.size()) {
        const TextView rest = code.substr(at);
        const std::size_t name = rest.starts_with(u"</") ? 2 : 1;
        if (rest.starts_with(u"<!--")) {
            // The dashes that open a comment may be those that close it.
            at = Behind(code, u"-->", at);
        } else if (IsTag(code, at, u"<script")) {
            const std::size_t begin = BehindTag(code, at);
            return {begin, EndOfScript(code, begin)};
        } else if (name < rest.size() && IsLetter(rest[name])) {
            at = BehindTag(code, at);
        } else {
            ++at;
        }
        at = code.find(u'<', at);
    }
    return {code.size(), code.size()};
}

} // namespace orvane
