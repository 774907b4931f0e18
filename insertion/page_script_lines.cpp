#include "insertion/page_script_lines.h"

#include "core/template.h"

#include <utility>

namespace orvane {

namespace {

constexpr std::string_view beginLine = "<!-- Begin Orvane page script -->";
constexpr std::string_view endLine = "<!-- End Orvane page script -->";
constexpr std::string_view onLoadName = "data-onload";
constexpr std::string_view onUnloadName = "data-onunload";

constexpr Template writtenLines(uR"page(
«BeginLine»
<SCRIPT SRC="«File»"«Calls»></SCRIPT>
«EndLine»)page");

constexpr Template callsOfTag(uR"page( «Name»="«Calls»")page");

Text CallsOfTag(std::string_view name, std::string_view calls)
{
    if (calls.empty())
        return {};
    const Text value = ReplaceAll(FromBytes(calls), u"\"", u"&quot;");
    return Fill(callsOfTag, {{u"Name", FromBytes(name)}, {u"Calls", value}});
}

bool IsBlank(std::string_view code, std::size_t begin, std::size_t end)
{
    return WithoutBlanksInFront(CodeIn(code, {begin, end})).empty();
}

/// Reads the SCRIPT tag of the lines; false when it leads to another file.
bool ReadTag(std::string_view tag, PageScriptLines& lines)
{
    const std::string file = ToBytes(pageScriptFile);
    bool isOurs = false;
    tag.remove_prefix(std::string_view("<script").size());
    while (const auto attribute = NextAttribute(tag)) {
        if (EqualIgnoringCase(attribute->Name, "src")) {
            isOurs = EndsWithIgnoringCase(attribute->Value, file);
            lines.IsChanged = lines.IsChanged || attribute->Value != file;
        } else if (attribute->Name == onLoadName) {
            lines.Carried.OnLoad = attribute->Value;
        } else if (attribute->Name == onUnloadName) {
            lines.Carried.OnUnload = attribute->Value;
        } else {
            lines.IsChanged = true;
        }
    }
    return isOurs;
}

/// The lines if they begin with this comment, and hold the one script and nothing else.
std::optional<PageScriptLines> LinesAt(std::string_view code, const Markup& comment)
{
    if (CodeIn(code, comment.Whole) != beginLine)
        return std::nullopt;
    const Markup tag = NextMarkup(code, comment.Next);
    const Markup closeTag = NextMarkup(code, tag.Next);
    const Markup end = NextMarkup(code, closeTag.Next);
    PageScriptLines lines{.Whole = {comment.Whole.Begin, end.Whole.End}};
    const bool areWhole = IsTag(code, tag.Whole.Begin, "<script") &&
                          IsTag(code, closeTag.Whole.Begin, "</script") &&
                          CodeIn(code, end.Whole) == endLine;
    const bool areAlone = IsBlank(code, comment.Whole.End, tag.Whole.Begin) &&
                          IsBlank(code, tag.Whole.End, closeTag.Whole.Begin) &&
                          IsBlank(code, closeTag.Whole.End, end.Whole.Begin);
    if (!areWhole || !areAlone || !ReadTag(CodeIn(code, tag.Whole), lines))
        return std::nullopt;
    lines.Code = CodeIn(code, lines.Whole);
    return lines;
}

} // namespace

Text LinesOfPageScript(const EventCalls& calls)
{
    return Fill(writtenLines, {{u"BeginLine", FromBytes(beginLine)},
                               {u"File", pageScriptFile},
                               {u"Calls", CallsOfTag(onLoadName, calls.OnLoad) +
                                              CallsOfTag(onUnloadName, calls.OnUnload)},
                               {u"EndLine", FromBytes(endLine)}});
}

std::optional<PageScriptLines> FindPageScriptLines(std::string_view page, std::size_t from)
{
    // Most pages have none, and a page may be long; it has fewer of this letter than of "<".
    if (page.find(beginLine.substr(beginLine.find('B')), from) == std::string_view::npos)
        return std::nullopt;
    for (Markup markup = NextMarkup(page, from); markup.Whole.Begin < page.size();
         markup = NextMarkup(page, markup.Next))
        if (auto lines = LinesAt(page, markup))
            return lines;
    return std::nullopt;
}

std::optional<PageScriptLines> TakePageScriptLines(std::string& page)
{
    std::optional<PageScriptLines> first;
    std::string rest;
    std::size_t done = 0;
    while (auto lines = FindPageScriptLines(page, done)) {
        rest.append(page, done, lines->Whole.Begin - done);
        done = lines->Whole.End;
        if (!first) {
            first = std::move(lines);
            continue;
        }
        first->Carried.OnLoad += ";" + lines->Carried.OnLoad;
        first->Carried.OnUnload += ";" + lines->Carried.OnUnload;
    }
    if (first)
        page = rest.append(page, done);
    return first;
}

} // namespace orvane
