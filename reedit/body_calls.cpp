#include "reedit/body_calls.h"

#include "core/text.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::string_view blanks = "\t\n\f\r ";
constexpr std::string_view bodyStart = "<body";

/// An event attribute; without quotes and value where it has none.
struct EventAttribute
{
    BodyEvent Event;
    CodeSpan Whole;
    CodeSpan Value;
    bool HasValue;
};

std::vector<EventAttribute> EventAttributesIn(std::string_view page, CodeSpan bodyTag)
{
    const auto placeOf = [&](std::string_view part) {
        return static_cast<std::size_t>(part.data() - page.data());
    };
    std::vector<EventAttribute> attributes;
    std::string_view rest = CodeIn(page, bodyTag).substr(bodyStart.size());
    while (const auto attribute = NextAttribute(rest)) {
        const bool isOnLoad = EqualIgnoringCase(attribute->Name, "onload");
        if (!isOnLoad && !EqualIgnoringCase(attribute->Name, "onunload"))
            continue;
        const CodeSpan whole{placeOf(attribute->Name), placeOf(rest)};
        const bool hasValue = attribute->Value.data() != nullptr;
        const std::size_t value = hasValue ? placeOf(attribute->Value) : whole.End;
        attributes.push_back({isOnLoad ? BodyEvent::OnLoad : BodyEvent::OnUnload,
                              whole,
                              {value, value + attribute->Value.size()},
                              hasValue});
    }
    return attributes;
}

/// The sign that begins at `at`, in which a reference to a character is one sign, and the place
/// behind it.
char TakeSign(std::string_view value, std::size_t& at)
{
    const std::size_t begin = at++;
    if (value[begin] != '&')
        return value[begin];
    const std::size_t end = value.find_first_of("; \"'()", at);
    if (end == std::string_view::npos || value[end] != ';' || end == at)
        return '&';
    const std::string_view name = value.substr(at, end - at);
    at = end + 1;
    if (name == "quot" || name == "#34")
        return '"';
    return name == "apos" || name == "#39" ? '\'' : '&';
}

/// The place of the semicolon that ends the statement at `at`, or the end of the value.
std::size_t EndOfStatement(std::string_view value, std::size_t at)
{
    char quote = '\0';
    int depth = 0;
    while (at < value.size()) {
        const std::size_t begin = at;
        const char sign = TakeSign(value, at);
        if (sign == '\\' && at < value.size())
            TakeSign(value, at);
        else if (quote != '\0')
            quote = sign == quote ? '\0' : quote;
        else if (sign == '"' || sign == '\'')
            quote = sign;
        else if (sign == '(' || sign == ')')
            depth += sign == '(' ? 1 : -1;
        else if (sign == ';' && depth <= 0)
            return begin;
    }
    return value.size();
}

/// A call as it stands in an attribute with that sign around its value; 0 stands for none.
std::string InQuotes(std::string_view call, char quote)
{
    const std::string_view forbidden =
        quote == '\0' ? std::string_view(" \t\r\n\f\"'<=>`") : std::string_view(&quote, 1);
    std::string value;
    for (const char sign : call)
        if (forbidden.find(sign) == std::string_view::npos)
            value.push_back(sign);
        else
            value.append("&#").append(std::to_string(static_cast<int>(sign))).append(";");
    return value;
}

char QuoteOf(std::string_view page, CodeSpan attribute)
{
    const char last = page[attribute.End - 1];
    return last == '"' || last == '\'' ? last : '\0';
}

} // namespace

void ForEachCall(std::string_view page, CodeSpan bodyTag,
                 const std::function<void(const BodyCall&)>& take)
{
    for (const EventAttribute& attribute : EventAttributesIn(page, bodyTag)) {
        const std::string_view value = CodeIn(page, attribute.Value);
        for (std::size_t at = 0; at < value.size();) {
            const std::size_t end = EndOfStatement(value, at);
            const std::size_t begin = std::min(value.find_first_not_of(blanks, at), end);
            const std::size_t last = value.substr(0, end).find_last_not_of(blanks);
            const std::size_t from = attribute.Value.Begin;
            if (begin < end)
                take({attribute.Event,
                      {from + begin, from + last + 1},
                      attribute.Value,
                      attribute.Whole});
            at = end + 1;
        }
    }
}

std::vector<BodyCall> CallsIn(std::string_view page, CodeSpan bodyTag)
{
    std::vector<BodyCall> calls;
    ForEachCall(page, bodyTag, [&](const BodyCall& call) { calls.push_back(call); });
    return calls;
}

std::string_view FunctionOf(std::string_view call)
{
    const std::size_t end = call.find('(');
    const auto isName = [](char sign) {
        return sign == '_' || sign == '$' || (sign >= '0' && sign <= '9') ||
               (sign >= 'A' && sign <= 'Z') || (sign >= 'a' && sign <= 'z');
    };
    const std::string_view name = call.substr(0, end);
    if (end == std::string_view::npos || !call.ends_with(')') || !std::ranges::all_of(name, isName))
        return {};
    return name;
}

CodeSpan CutOf(std::string_view page, const BodyCall& call)
{
    const auto [begin, end] = call.Attribute;
    if (call.Call == call.Value) {
        const bool hasBlank = page[begin - 1] == ' ';
        // An insertion writes the attribute so directly in front of the tag's end, and the next one
        // directly behind this.
        const bool isInserted =
            CodeIn(page, call.Attribute)
                .starts_with(call.Event == BodyEvent::OnLoad ? "onload=\"" : "onunload=\"") &&
            (page.substr(end, 2) == " >" || page.substr(end, 2) == "  ");
        return {begin - (hasBlank ? 1 : 0), end + (hasBlank && isInserted ? 1 : 0)};
    }
    if (call.Call.End < call.Value.End && page[call.Call.End] == ';')
        return {call.Call.Begin, call.Call.End + 1};
    const std::size_t before = page.substr(0, call.Call.Begin).find_last_not_of(blanks);
    if (before >= call.Value.Begin && page[before] == ';')
        return {before, call.Call.End};
    return call.Call;
}

Splice JoinCall(std::string_view page, CodeSpan bodyTag, BodyEvent event, std::string_view call)
{
    const auto attributes = EventAttributesIn(page, bodyTag);
    const auto first = std::ranges::find(attributes, event, &EventAttribute::Event);
    if (first != attributes.end() && first->HasValue) {
        const char quote = QuoteOf(page, first->Whole);
        return {{first->Value.Begin, first->Value.Begin}, InQuotes(call, quote) + ";"};
    }
    // An attribute without a value does nothing, and only the first of a name counts.
    const std::size_t at = bodyTag.Begin + bodyStart.size();
    const std::string_view name = event == BodyEvent::OnLoad ? " onLoad=\"" : " onUnload=\"";
    return {{at, at}, Join({name, InQuotes(call, '"'), "\""})};
}

Splice ReplaceCall(std::string_view page, const BodyCall& old, std::string_view call)
{
    return {old.Call, InQuotes(call, QuoteOf(page, old.Attribute))};
}

} // namespace orvane
