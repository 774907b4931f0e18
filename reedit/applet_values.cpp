#include "reedit/applet_values.h"

#include "core/numbers.h"
#include "services/color.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

/// The place of a key outside all quotes, so that an author's words that look like one are passed
/// over; its first place in a tag whose quotes do not pair up.
std::size_t FindKey(TextView tag, TextView key)
{
    bool isQuoted = false;
    for (std::size_t i = 0; i < tag.size(); ++i) {
        if (tag[i] == u'"')
            isQuoted = !isQuoted;
        else if (!isQuoted && tag.substr(i).starts_with(key))
            return i + 1;
    }
    return isQuoted ? Find(tag, key) : 0;
}

} // namespace

Text GetAppletValue(TextView pasted, TextView key)
{
    const Text bareKey = ReplaceAll(key, u"\"", u"");
    const std::size_t place = Find(pasted, bareKey);
    if (place == 0)
        return {};
    const std::size_t value = place + bareKey.size();
    // One further, so that the opening quote is stepped over; it stays part of the value, and the
    // wizards count on it.
    const std::size_t end = Find(pasted, u"\"", value + 1);
    if (end == 0)
        return {};
    return Text(Mid(pasted, value, end - value));
}

Text TagValue(const PastedTag& tag, TextView key)
{
    if (tag.Reading == Quotes::Kept)
        return GetAppletValue(tag.Whole, key);
    const std::size_t place = FindKey(tag.Whole, key);
    if (place == 0)
        return {};
    const TextView value = Mid(tag.Whole, place + key.size());
    const bool isQuoted = Left(value, 1) == u"\"";
    const std::size_t end = isQuoted ? value.find(u'"', 1) : value.find_first_of(u" >\r\n");
    return Text(isQuoted ? value.substr(1, end == TextView::npos ? end : end - 1)
                         : value.substr(0, end));
}

int TagNumber(const PastedTag& tag, TextView key, int lowest, int highest)
{
    const double number = std::clamp<double>(Val(TagValue(tag, key)), lowest, highest);
    return static_cast<int>(std::nearbyint(number));
}

PastedTag WithoutQuotes(PastedTag tag)
{
    tag.Reading = Quotes::TakenOff;
    return tag;
}

Text TagColor(const PastedTag& tag, TextView key)
{
    const Text value = TagValue(tag, key);
    const auto packed = Find(value, u",") == 0 ? std::nullopt : PackedColor(value);
    return packed ? ColorText(*packed, ColorNotation::Hash) : value;
}

Text NumberedTagValue(const PastedTag& tag, TextView first, TextView second, int number)
{
    const auto value = [&](TextView key) {
        return TagValue(tag, Join({key, u".", NumberToText(number), u" VALUE="}));
    };
    const Text found = value(first);
    return found.empty() ? value(second) : found;
}

std::vector<Text> TagImages(const PastedTag& tag)
{
    std::vector<Text> images;
    for (int i = 0; i <= lastNumberOfTag; ++i) {
        const Text image = TagValue(tag, Join({u"IMAGE.", NumberToText(i), u" VALUE="}));
        if (image.empty())
            break;
        images.push_back(image);
    }
    return images;
}

PipeValues PipeParse(TextView text)
{
    // Stays as it is: whatever the last piece is, its final character is cut off.
    const auto withoutLast = [](TextView piece) {
        return Text(Left(piece, piece.empty() ? 0 : piece.size() - 1));
    };
    const std::size_t first = Find(text, u"|");
    if (first == 0)
        return {};
    const Text before(Left(text, first - 1));
    const std::size_t second = Find(text, u"|", first + 1);
    if (second == 0)
        return {before, withoutLast(Mid(text, first + 1))};
    return {before, Text(Mid(text, first + 1, second - first - 1)),
            withoutLast(Mid(text, second + 1))};
}

} // namespace orvane
