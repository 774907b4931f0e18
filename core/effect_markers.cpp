#include "core/effect_markers.h"

namespace orvane {

namespace {

constexpr TextView beginHead = u"<!-- ***** Begin:Varlo ";
constexpr TextView endHead = u"<!-- ***** End:Varlo ";
constexpr TextView tail = u" special effect ***** -->";

} // namespace

EffectMarkers MarkersOf(TextView name)
{
    return {Join({beginHead, name, tail}), Join({endHead, name, tail})};
}

std::optional<Text> NameInBeginMarker(TextView comment)
{
    if (comment.size() < beginHead.size() + tail.size() ||
        !StartsWithIgnoringCase(comment, beginHead) || !EndsWithIgnoringCase(comment, tail))
        return std::nullopt;
    comment.remove_prefix(beginHead.size());
    comment.remove_suffix(tail.size());
    return Text(comment);
}

Text Marked(const EffectMarkers& markers, TextView code)
{
    return code.empty() ? Text() : Join({markers.Begin, lineEnd, code, markers.End});
}

} // namespace orvane
