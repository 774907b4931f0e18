#include "core/effect_markers.h"

namespace orvane {

namespace {

constexpr TextView beginHead = u"<!-- ***** Begin:Varlo ";
constexpr TextView endHead = u"<!-- ***** End:Varlo ";
constexpr TextView tail = u" special effect ***** -->";

std::optional<Text> NameIn(TextView comment, TextView head)
{
    if (comment.size() < head.size() + tail.size() || !StartsWithIgnoringCase(comment, head) ||
        !EndsWithIgnoringCase(comment, tail))
        return std::nullopt;
    comment.remove_prefix(head.size());
    comment.remove_suffix(tail.size());
    return Text(comment);
}

} // namespace

EffectMarkers MarkersOf(TextView name)
{
    return {Join({beginHead, name, tail}), Join({endHead, name, tail})};
}

std::optional<Text> NameInBeginMarker(TextView comment)
{
    return NameIn(comment, beginHead);
}

std::optional<Text> NameInEndMarker(TextView comment)
{
    return NameIn(comment, endHead);
}

Text Marked(const EffectMarkers& markers, TextView code)
{
    return code.empty() ? Text() : Join({markers.Begin, lineEnd, code, markers.End});
}

} // namespace orvane
