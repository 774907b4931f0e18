#include "reedit/places_to_point.h"

#include "insertion/page_decoding.h"
#include "insertion/page_encoding.h"
#include "insertion/page_files.h"
#include "reedit/effect_words.h"
#include "reedit/page_parts.h"
#include "reedit/page_places.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t mostLetters = 40;

/// What an element is that has a name of its own in the list; empty for any other.
TextView NameOf(std::string_view tag)
{
    static constexpr std::pair<std::string_view, TextView> names[] = {
        {"<h1", u"heading"},  {"<h2", u"heading"},  {"<h3", u"heading"}, {"<h4", u"heading"},
        {"<h5", u"heading"},  {"<h6", u"heading"},  {"<p", u"text"},     {"<img", u"picture"},
        {"<table", u"table"}, {"<td", u"cell"},     {"<th", u"cell"},    {"<ul", u"list"},
        {"<ol", u"list"},     {"<dl", u"list"},     {"<li", u"item"},    {"<hr", u"line across"},
        {"<form", u"form"},   {"<video", u"video"}, {"<audio", u"sound"}};
    for (const auto& [start, name] : names)
        if (IsTag(tag, 0, start))
            return name;
    return {};
}

/// The first words of the part or, where it has none, the first file that it names.
Text WordsIn(std::string_view page, const PagePart& part, PageEncoding encoding)
{
    std::string code;
    for (std::size_t at = part.Tag.End; at < part.After && code.size() < 4 * mostLetters;) {
        const Markup next = NextMarkup(page, at);
        code += page.substr(at, std::min(next.Whole.Begin, part.After) - at);
        const std::string_view tag = CodeIn(page, next.Whole);
        if (!NameOf(tag).empty() || IsTag(tag, 0, "<br"))
            code += ' ';
        at = next.Next;
    }
    const Text all =
        WithoutReferences(encoding == PageEncoding::Utf8 ? FromUtf8(code) : FromWindows1252(code));
    Text words;
    for (const char16_t sign : all) {
        const bool isBlank = sign == u' ' || sign == u'\t' || sign == u'\r' || sign == u'\n';
        if (!isBlank)
            words += sign;
        else if (!words.empty() && words.back() != u' ')
            words += u' ';
    }
    if (words = Trim(words); words.size() > mostLetters)
        words = words.substr(0, mostLetters) + u"\u2026";
    if (!words.empty())
        return words;
    const auto files = NamesInCode(CodeIn(page, part.Tag), encoding);
    return files.empty() ? Text() : files.front();
}

} // namespace

std::vector<PlaceToPoint> PlacesToPoint(std::string_view page)
{
    const PageEncoding encoding = EncodingOf(page);
    const PageLines lines(page);
    std::map<std::size_t, Text> effects; ///< titles by the places of the blocks
    for (const EffectInPage& effect : EffectsIn(page))
        for (const EffectPart& part : effect.Parts)
            effects.emplace(part.Span.Begin, TitleOf(effect));
    const std::size_t top = TopOf(page), end = EndOf(page);
    std::vector<PlaceToPoint> places = {{u"At the top of the page", top, top}};
    for (const PagePart& part : PartsOf(page)) {
        const auto effect = effects.find(part.Before);
        const TextView name = NameOf(CodeIn(page, part.Tag));
        Text words = effect == effects.end() ? Text(name.empty() ? u"section" : name)
                                             : Join({u"special effect ", effect->second});
        if (effect == effects.end())
            if (const Text inside = WordsIn(page, part, encoding); !inside.empty())
                words += Join({u": ", inside});
        places.push_back(
            {Join({u"Line ", lines.LineOf(part.Before), u", ", words}), part.Before, part.After});
    }
    places.push_back({u"At the end of the page", end, end});
    return places;
}

} // namespace orvane
