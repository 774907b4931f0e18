#include "core/text.h"

#include <algorithm>
#include <stdexcept>

namespace orvane {

namespace {

constexpr char16_t replacementCharacter = 0xFFFD;

constexpr bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Latin Extended-A holds its letters as neighbouring pairs; in two stretches the upper one is odd.
constexpr bool IsPairWithOddUpper(char16_t c)
{
    return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
}

constexpr bool IsPairWithEvenUpper(char16_t c)
{
    return (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177);
}

bool SameIgnoringCase(char16_t left, char16_t right)
{
    return ToLower(left) == ToLower(right);
}

void AppendUtf8(std::string& bytes, char32_t point)
{
    const auto put = [&](char32_t value) { bytes.push_back(static_cast<char>(value)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | (point >> 6));
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | (point >> 18));
        put(0x80 | ((point >> 12) & 0x3F));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

struct Utf8Sequence
{
    std::size_t Length = 1;
    char32_t Point = replacementCharacter;
};

/// The well-formed sequence at the start of `bytes`, or one byte as U+FFFD.
Utf8Sequence ReadUtf8(std::string_view bytes)
{
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byteAt(0);
    if (lead < 0x80)
        return {1, lead};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length)
        return {};
    char32_t point = lead & (0xFF >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80)
            return {};
        point = (point << 6) | (byteAt(i) & 0x3F);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    if (overlong || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
        return {};
    return {length, point};
}

} // namespace

std::size_t Find(TextView text, TextView sought, std::size_t from)
{
    if (from == 0)
        return 0;
    const std::size_t place = text.find(sought, from - 1);
    return place == TextView::npos ? 0 : place + 1;
}

std::size_t FindIgnoringCase(TextView text, TextView sought, std::size_t from)
{
    if (from == 0 || from > text.size() + 1)
        return 0;
    if (sought.empty())
        return from;
    if (sought.size() > text.size())
        return 0;
    // Pages are searched again and again: most places are out by their first character.
    const char16_t first = ToLower(sought.front());
    const char16_t upper = ToUpper(first);
    const std::size_t last = text.size() - sought.size();
    for (std::size_t i = from - 1; i <= last; ++i)
        if ((text[i] == first || text[i] == upper ||
             (text[i] >= 0x80 && ToLower(text[i]) == first)) &&
            EqualIgnoringCase(text.substr(i, sought.size()), sought))
            return i + 1;
    return 0;
}

std::size_t FindLast(TextView text, TextView sought)
{
    const std::size_t place = text.rfind(sought);
    return place == TextView::npos ? 0 : place + 1;
}

TextView Left(TextView text, std::size_t count)
{
    return text.substr(0, count);
}

TextView Right(TextView text, std::size_t count)
{
    return text.substr(text.size() - std::min(count, text.size()));
}

TextView Mid(TextView text, std::size_t from, std::size_t count)
{
    return from == 0 || from > text.size() ? TextView() : text.substr(from - 1, count);
}

TextView Trim(TextView text)
{
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == TextView::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

char16_t ToLower(char16_t c)
{
    const auto moved = [&](int distance) { return static_cast<char16_t>(c + distance); };
    if ((c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return moved(0x20);
    if (c < 0x100)
        return c;
    if ((IsPairWithEvenUpper(c) && c % 2 == 0) || (IsPairWithOddUpper(c) && c % 2 == 1))
        return moved(1);
    if (c == 0x178)
        return 0xFF;
    if ((c >= 0x391 && c <= 0x3AB && c != 0x3A2) || (c >= 0x410 && c <= 0x42F))
        return moved(0x20);
    if (c >= 0x400 && c <= 0x40F)
        return moved(0x50);
    return c;
}

char16_t ToUpper(char16_t c)
{
    const auto moved = [&](int distance) { return static_cast<char16_t>(c + distance); };
    if ((c >= u'a' && c <= u'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
        return moved(-0x20);
    if (c < 0xFF)
        return c;
    if (c == 0xFF)
        return 0x178;
    if ((IsPairWithEvenUpper(c) && c % 2 == 1) || (IsPairWithOddUpper(c) && c % 2 == 0))
        return moved(-1);
    if ((c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) || (c >= 0x430 && c <= 0x44F))
        return moved(-0x20);
    if (c >= 0x450 && c <= 0x45F)
        return moved(-0x50);
    return c;
}

Text ToLower(TextView text)
{
    Text lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char16_t c) { return ToLower(c); });
    return lower;
}

Text ToUpper(TextView text)
{
    Text upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char16_t c) { return ToUpper(c); });
    return upper;
}

bool EqualIgnoringCase(TextView left, TextView right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), SameIgnoringCase);
}

bool StartsWithIgnoringCase(TextView text, TextView start)
{
    return text.size() >= start.size() && EqualIgnoringCase(Left(text, start.size()), start);
}

bool EndsWithIgnoringCase(TextView text, TextView end)
{
    return text.size() >= end.size() && EqualIgnoringCase(Right(text, end.size()), end);
}

Text ReplaceAll(TextView text, TextView old, TextView replacement)
{
    if (old.empty())
        return Text(text);
    Text result;
    result.reserve(text.size());
    std::size_t done = 0;
    for (std::size_t hit = text.find(old); hit != TextView::npos; hit = text.find(old, done)) {
        result.append(text, done, hit - done).append(replacement);
        done = hit + old.size();
    }
    return result.append(text, done);
}

Text Join(std::initializer_list<TextView> pieces)
{
    std::size_t size = 0;
    for (const TextView piece : pieces)
        size += piece.size();
    Text joined;
    joined.reserve(size);
    for (const TextView piece : pieces)
        joined.append(piece);
    return joined;
}

Text FromBytes(std::string_view bytes)
{
    Text text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        return static_cast<char16_t>(static_cast<unsigned char>(byte));
    });
    return text;
}

std::string ToBytes(TextView text)
{
    std::string bytes(text.size(), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(), [](char16_t unit) {
        if (unit > 0xFF)
            throw std::logic_error("ToBytes: a character above 255");
        return static_cast<char>(static_cast<unsigned char>(unit));
    });
    return bytes;
}

Text FromUtf8(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Utf8Sequence sequence = ReadUtf8(bytes);
        if (sequence.Point >= 0x10000) {
            const char32_t offset = sequence.Point - 0x10000;
            text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
        } else {
            text.push_back(static_cast<char16_t>(sequence.Point));
        }
        bytes.remove_prefix(sequence.Length);
    }
    return text;
}

std::string ToUtf8(TextView text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            point = 0x10000 + ((point - 0xD800) << 10) + (text[i + 1] - 0xDC00u);
            ++i;
        } else if (IsHighSurrogate(text[i]) || IsLowSurrogate(text[i])) {
            point = replacementCharacter;
        }
        AppendUtf8(bytes, point);
    }
    return bytes;
}

} // namespace orvane
