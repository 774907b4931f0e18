#include "reedit/page_places.h"

#include "core/text.h"

#include <algorithm>

namespace orvane {

namespace {

bool IsInside(std::size_t at, CodeSpan span)
{
    return at > span.Begin && at < span.End;
}

/// The place behind the line end that stands there, if one does.
std::size_t BehindLineEnd(std::string_view page, std::size_t at)
{
    if (page.substr(at, 2) == "\r\n")
        return at + 2;
    return at < page.size() && (page[at] == '\n' || page[at] == '\r') ? at + 1 : at;
}

} // namespace

TextView Words(NoPlace reason)
{
    switch (reason) {
    case NoPlace::InsideMarkup:
        return u"Nothing can be put inside a tag, a comment or a script.";
    case NoPlace::InsideEffect:
        return u"Another special effect stands here.  Please point in front of it or behind it.";
    case NoPlace::OutsideBody:
        return u"This place is in front of what the Web page shows.";
    case NoPlace::NoBodyTag:
        return u"This special effect needs a BODY tag, which your Web page does not have.";
    case NoPlace::TwoByteText:
        break;
    }
    return u"Your Web page is saved as UTF-16.  Please save it as UTF-8 first.";
}

Landmarks LandmarksOf(std::string_view page)
{
    Landmarks marks{.HeadTag = HeadTag(page)};
    for (Markup markup = NextMarkup(page, 0); markup.Whole.Begin < page.size();
         markup = NextMarkup(page, markup.Next)) {
        const std::size_t at = markup.Whole.Begin;
        if (page[markup.Whole.End - 1] != '>')
            continue;
        if (!marks.HeadEnd && !marks.BodyTag && IsTag(page, at, "</head"))
            marks.HeadEnd = markup.Whole;
        else if (!marks.BodyTag && IsTag(page, at, "<body"))
            marks.BodyTag = markup.Whole;
        else if (IsTag(page, at, "</body"))
            marks.BodyEnd = at;
        else if (IsTag(page, at, "</html"))
            marks.PageEnd = at;
    }
    return marks;
}

std::size_t TopOf(std::string_view page)
{
    const Landmarks marks = LandmarksOf(page);
    // The line end stays with the tag: an insertion repeats the character behind that.
    if (marks.BodyTag)
        return BehindLineEnd(page, marks.BodyTag->End);
    if (marks.HeadEnd)
        return marks.HeadEnd->End;
    if (const auto tag = FindTag(page, "<html"))
        return tag->End;
    std::size_t at = page.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    // A browser shows a page another way when something stands in front of its DOCTYPE.
    const std::size_t first = std::min(page.find_first_not_of("\t\n\f\r ", at), page.size());
    if (StartsWithIgnoringCase(page.substr(first), "<!doctype"))
        at = std::min(page.find('>', first), page.size() - 1) + 1;
    return at;
}

std::size_t EndOf(std::string_view page)
{
    const Landmarks marks = LandmarksOf(page);
    return marks.BodyEnd ? *marks.BodyEnd : marks.PageEnd.value_or(page.size());
}

bool IsTwoByteText(std::string_view page)
{
    return page.starts_with("\xFF\xFE") || page.starts_with("\xFE\xFF") ||
           page.substr(0, 2).find('\0') != std::string_view::npos;
}

std::optional<NoPlace> WhyNotAt(std::string_view page, std::size_t at, const Landmarks& marks,
                                const std::vector<EffectInPage>& effects)
{
    if ((marks.BodyTag && at < marks.BodyTag->End) || (marks.HeadEnd && at < marks.HeadEnd->End))
        return NoPlace::OutsideBody;
    for (const EffectInPage& effect : effects)
        for (const EffectPart& part : effect.Parts)
            if (IsInside(at, part.Span))
                return NoPlace::InsideEffect;
    Markup markup = NextMarkup(page, 0);
    while (markup.Next < at && markup.Whole.Begin < page.size())
        markup = NextMarkup(page, markup.Next);
    if (IsInside(at, markup.Whole) || (at >= markup.Whole.End && at < markup.Next) ||
        at > page.size() || EndsPlainText(page, at))
        return NoPlace::InsideMarkup;
    return std::nullopt;
}

} // namespace orvane
