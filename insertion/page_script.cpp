#include "insertion/page_script.h"

#include "core/template.h"
#include "insertion/page_encoding.h"
#include "insertion/page_markup.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace orvane {

namespace {

constexpr TextView beginLine = u"<!-- Begin Orvane page script -->";
constexpr TextView endLine = u"<!-- End Orvane page script -->";

constexpr Template linesWithCalls(uR"page(
<!-- Begin Orvane page script -->
<SCRIPT SRC="orvane.js"«Calls»></SCRIPT>
<!-- End Orvane page script -->)page");

constexpr Template callsOfTag(uR"page( «Name»="«Calls»")page");

/// The two events of a BODY tag that start effects.
struct Calls
{
    Text OnLoad;
    Text OnUnload;
};

/// The lines in a page.
struct Lines
{
    CodeSpan Whole;
    Text Code;
    Calls Carried;
    bool IsChanged = false; ///< the author has made something else of the SCRIPT line
};

TextView Piece(TextView code, CodeSpan span)
{
    return code.substr(span.Begin, span.End - span.Begin);
}

bool IsBlank(TextView code, std::size_t begin, std::size_t end)
{
    return WithoutBlanksInFront(Piece(code, {begin, end})).empty();
}

/// Reads the SCRIPT tag of the lines; false when it leads to another file.
bool ReadTag(TextView tag, Lines& lines)
{
    bool isOurs = false;
    tag.remove_prefix(TextView(u"<script").size());
    while (const auto attribute = NextAttribute(tag)) {
        if (EqualIgnoringCase(attribute->Name, u"src")) {
            isOurs = EndsWithIgnoringCase(attribute->Value, pageScriptFile);
            lines.IsChanged = lines.IsChanged || attribute->Value != pageScriptFile;
        } else if (attribute->Name == u"data-onload") {
            lines.Carried.OnLoad = attribute->Value;
        } else if (attribute->Name == u"data-onunload") {
            lines.Carried.OnUnload = attribute->Value;
        } else {
            lines.IsChanged = true;
        }
    }
    return isOurs;
}

/// The lines if they begin with this comment, and hold the one script and nothing else.
std::optional<Lines> LinesAt(TextView code, const Markup& comment)
{
    if (Piece(code, comment.Whole) != beginLine)
        return std::nullopt;
    const Markup tag = NextMarkup(code, comment.Next);
    const Markup closeTag = NextMarkup(code, tag.Next);
    const Markup end = NextMarkup(code, closeTag.Next);
    Lines lines{.Whole = {comment.Whole.Begin, end.Whole.End}};
    const bool areWhole = IsTag(code, tag.Whole.Begin, u"<script") &&
                          IsTag(code, closeTag.Whole.Begin, u"</script") &&
                          Piece(code, end.Whole) == endLine;
    const bool areAlone = IsBlank(code, comment.Whole.End, tag.Whole.Begin) &&
                          IsBlank(code, tag.Whole.End, closeTag.Whole.Begin) &&
                          IsBlank(code, closeTag.Whole.End, end.Whole.Begin);
    if (!areWhole || !areAlone || !ReadTag(Piece(code, tag.Whole), lines))
        return std::nullopt;
    lines.Code = Piece(code, lines.Whole);
    return lines;
}

std::optional<Lines> FindLines(TextView code)
{
    for (Markup markup = NextMarkup(code, 0); markup.Whole.Begin < code.size();
         markup = NextMarkup(code, markup.Next))
        if (auto lines = LinesAt(code, markup))
            return lines;
    return std::nullopt;
}

/// The first tag of that name; nothing when another of `before` or the end of the code comes first,
/// or when the tag has no end.
std::optional<CodeSpan> FindTag(TextView code, TextView name,
                                std::initializer_list<TextView> before = {})
{
    Markup markup = NextMarkup(code, 0);
    for (; markup.Whole.Begin < code.size(); markup = NextMarkup(code, markup.Next)) {
        const std::size_t at = markup.Whole.Begin;
        if (IsTag(code, at, name))
            return code[markup.Whole.End - 1] == u'>' ? std::optional(markup.Whole) : std::nullopt;
        if (std::any_of(before.begin(), before.end(),
                        [&](TextView other) { return IsTag(code, at, other); }))
            return std::nullopt;
    }
    return std::nullopt;
}

/// The HEAD tag as a browser takes it: one inside of the page's body counts for nothing.
std::optional<CodeSpan> HeadTag(TextView code)
{
    return FindTag(code, u"<head", {u"<body", u"<frameset", u"</head", u"</html"});
}

/// Takes all lines out; gives the first ones with the calls of all.
std::optional<Lines> TakeOut(Text& code)
{
    std::optional<Lines> first;
    while (auto lines = FindLines(code)) {
        code.erase(lines->Whole.Begin, lines->Whole.End - lines->Whole.Begin);
        if (!first) {
            first = std::move(lines);
            continue;
        }
        first->Carried.OnLoad += u";" + lines->Carried.OnLoad;
        first->Carried.OnUnload += u";" + lines->Carried.OnUnload;
    }
    return first;
}

/// Whether a call that stands in a BODY tag is one of these, or the window of a popup effect.
bool IsOfEffects(TextView call, TextView known)
{
    return Find(Join({u";", known, u";"}), Join({u";", call, u";"})) != 0 ||
           (call.starts_with(u"window.open(") && Find(call, u",toolbar=") != 0);
}

/// The calls of effects that the BODY tag holds under that name in vain, divided by semicolons:
/// browsers drop every attribute of a name but the first.
Text DroppedCalls(TextView bodyTag, TextView event, TextView known)
{
    Text dropped;
    bool isFirst = true;
    bodyTag.remove_prefix(TextView(u"<body").size());
    while (const auto attribute = NextAttribute(bodyTag)) {
        if (!EqualIgnoringCase(attribute->Name, event) || std::exchange(isFirst, false))
            continue;
        if (IsOfEffects(attribute->Value, known) && !attribute->Value.empty())
            dropped += (dropped.empty() ? Text() : Text(u";")).append(attribute->Value);
    }
    return dropped;
}

Text CallsOfTag(TextView name, TextView calls)
{
    if (calls.empty())
        return {};
    return Fill(callsOfTag, {{u"Name", name}, {u"Calls", ReplaceAll(calls, u"\"", u"&quot;")}});
}

/// The lines for a page whose effects have these calls.
Text MakeLines(TextView code, const Calls& known)
{
    const auto body = FindTag(code, u"<body");
    const TextView tag = body ? Piece(code, *body) : TextView(u"<body>");
    return Fill(linesWithCalls,
                {{u"Calls", CallsOfTag(u"data-onload", DroppedCalls(tag, u"onload", known.OnLoad)) +
                                CallsOfTag(u"data-onunload",
                                           DroppedCalls(tag, u"onunload", known.OnUnload))}});
}

/// The calls of the payload, as the page's bytes will hold them, behind those that are known.
Calls AllCalls(const FinishedPayload& payload, PageEncoding encoding, const Calls& known)
{
    const EffectPayload& effect = payload.Effect;
    const auto bytes = [&](TextView Func, TextView Args) {
        return FromBytes(EncodeForAttribute(Join({Func, Args}), encoding));
    };
    return {known.OnLoad + u";" + bytes(effect.OnLoadFunc, effect.OnLoadArgs),
            known.OnUnload + u";" + bytes(effect.OnUnloadFunc, effect.OnUnloadArgs)};
}

} // namespace

bool HasPageScript(std::string_view page)
{
    return FindLines(FromBytes(page)).has_value();
}

std::string WithPageScript(std::string_view page)
{
    Text code = FromBytes(page);
    const auto head = HeadTag(code);
    if (!head || FindLines(code))
        return std::string(page);
    return ToBytes(code.insert(head->End, pageScriptLines));
}

std::string WithoutPageScript(std::string_view page)
{
    Text code = FromBytes(page);
    TakeOut(code);
    return ToBytes(code);
}

PageEdit EditPageAndScript(std::string_view page, const FinishedPayload& payload,
                           const ReplaceQuestion& askToReplace)
{
    Text code = FromBytes(page);
    const auto lines = TakeOut(code);
    if (!HeadTag(code) || (!lines && !payload.RunsToday))
        return EditPage(page, payload, askToReplace);
    PageEdit edit = EditPage(ToBytes(code), payload, askToReplace);
    auto* edited = std::get_if<EditedPage>(&edit);
    if (!edited)
        return edit;
    code = FromBytes(edited->Bytes);
    const Calls known = AllCalls(payload, EncodingOf(page), lines ? lines->Carried : Calls());
    if (const auto head = HeadTag(code))
        code.insert(head->End, lines && lines->IsChanged ? lines->Code : MakeLines(code, known));
    edited->Bytes = ToBytes(code);
    return edit;
}

std::string_view PageScriptVersion(std::string_view file)
{
    constexpr std::string_view begin = "/*! Orvane page script ";
    if (!file.starts_with(begin))
        return {};
    file.remove_prefix(begin.size());
    return file.substr(0, std::min(file.find(' '), std::size_t{20}));
}

bool IsLaterVersion(std::string_view version, std::string_view other)
{
    const auto takeNumber = [](std::string_view& rest) {
        int number = 0;
        const auto read = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        rest.remove_prefix(static_cast<std::size_t>(read.ptr - rest.data()));
        if (!rest.empty())
            rest.remove_prefix(1);
        return number;
    };
    while (!version.empty() || !other.empty()) {
        const int left = takeNumber(version), right = takeNumber(other);
        if (left != right)
            return left > right;
    }
    return false;
}

} // namespace orvane
