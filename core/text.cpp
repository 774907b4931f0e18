#include "core/text.h"

#include <algorithm>
#include <stdexcept>

namespace orvane {

namespace {

/// The character of a text, or the one that a byte counts as.
constexpr char16_t CharacterOf(char16_t unit)
{
    return unit;
}
constexpr char16_t CharacterOf(char byte)
{
    return static_cast<unsigned char>(byte);
}

template <class View>
std::size_t FindIn(View text, View sought, std::size_t from)
{
    if (from == 0)
        return 0;
    const std::size_t place = text.find(sought, from - 1);
    return place == View::npos ? 0 : place + 1;
}

template <class View>
bool AreEqualIgnoringCase(View left, View right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](auto l, auto r) {
        return l == r || ToLower(CharacterOf(l)) == ToLower(CharacterOf(r));
    });
}

template <class View>
std::size_t FindInIgnoringCase(View text, View sought, std::size_t from)
{
    if (from == 0 || from > text.size() + 1)
        return 0;
    if (sought.empty())
        return from;
    if (sought.size() > text.size())
        return 0;
    // Most places are out by their first character.
    const char16_t first = ToLower(CharacterOf(sought.front()));
    const char16_t upper = ToUpper(first);
    const std::size_t last = text.size() - sought.size();
    for (std::size_t i = from - 1; i <= last; ++i) {
        const char16_t c = CharacterOf(text[i]);
        if ((c == first || c == upper || (c >= 0x80 && ToLower(c) == first)) &&
            AreEqualIgnoringCase(text.substr(i, sought.size()), sought))
            return i + 1;
    }
    return 0;
}

template <class View>
auto ReplaceAllIn(View text, View old, View replacement)
{
    using Whole = std::basic_string<typename View::value_type>;
    if (old.empty())
        return Whole(text);
    Whole result;
    result.reserve(text.size());
    std::size_t done = 0;
    for (std::size_t hit = text.find(old); hit != View::npos; hit = text.find(old, done)) {
        result.append(text, done, hit - done).append(replacement);
        done = hit + old.size();
    }
    result.append(text, done);
    return result;
}

template <class View>
auto Joined(std::initializer_list<View> pieces)
{
    std::size_t size = 0;
    for (const View piece : pieces)
        size += piece.size();
    std::basic_string<typename View::value_type> joined;
    joined.reserve(size);
    for (const View piece : pieces)
        joined.append(piece);
    return joined;
}

template <class View>
View TakeViewUntil(View& rest, typename View::value_type sign)
{
    const View taken = rest.substr(0, rest.find(sign));
    rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
    return taken;
}

} // namespace

std::size_t Find(TextView text, TextView sought, std::size_t from)
{
    return FindIn(text, sought, from);
}

std::size_t Find(std::string_view bytes, std::string_view sought, std::size_t from)
{
    return FindIn(bytes, sought, from);
}

std::size_t FindIgnoringCase(TextView text, TextView sought, std::size_t from)
{
    return FindInIgnoringCase(text, sought, from);
}

std::size_t FindIgnoringCase(std::string_view bytes, std::string_view sought, std::size_t from)
{
    if (from == 0 || sought.empty() || CharacterOf(sought.front()) >= 0x80)
        return FindInIgnoringCase(bytes, sought, from);
    // Pages are long and searched again and again; the library passes over many bytes at once.
    const char lower = static_cast<char>(ToLower(CharacterOf(sought.front())));
    const char upper = static_cast<char>(ToUpper(CharacterOf(sought.front())));
    std::size_t lowerAt = bytes.find(lower, from - 1);
    for (std::size_t at = from - 1;; ++at) {
        if (lowerAt < at)
            lowerAt = bytes.find(lower, at);
        at = std::min(lowerAt, bytes.substr(0, lowerAt).find(upper, at));
        if (at == std::string_view::npos)
            return 0;
        if (AreEqualIgnoringCase(bytes.substr(at, sought.size()), sought))
            return at + 1;
    }
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
    return AreEqualIgnoringCase(left, right);
}

bool EqualIgnoringCase(std::string_view left, std::string_view right)
{
    return AreEqualIgnoringCase(left, right);
}

bool StartsWithIgnoringCase(TextView text, TextView start)
{
    return EqualIgnoringCase(text.substr(0, start.size()), start);
}

bool StartsWithIgnoringCase(std::string_view bytes, std::string_view start)
{
    return EqualIgnoringCase(bytes.substr(0, start.size()), start);
}

bool EndsWithIgnoringCase(TextView text, TextView end)
{
    return EqualIgnoringCase(Right(text, end.size()), end);
}

bool EndsWithIgnoringCase(std::string_view bytes, std::string_view end)
{
    return bytes.size() >= end.size() &&
           EqualIgnoringCase(bytes.substr(bytes.size() - end.size()), end);
}

Text ReplaceAll(TextView text, TextView old, TextView replacement)
{
    return ReplaceAllIn(text, old, replacement);
}

std::string ReplaceAll(std::string_view bytes, std::string_view old, std::string_view replacement)
{
    return ReplaceAllIn(bytes, old, replacement);
}

Text Join(std::initializer_list<TextView> pieces)
{
    return Joined(pieces);
}

std::string Join(std::initializer_list<std::string_view> pieces)
{
    return Joined(pieces);
}

TextView TakeUntil(TextView& rest, char16_t sign)
{
    return TakeViewUntil(rest, sign);
}

std::string_view TakeUntil(std::string_view& rest, char sign)
{
    return TakeViewUntil(rest, sign);
}

Text Listed(std::span<const Text> texts, TextView between)
{
    Text list;
    for (std::size_t i = 0; i < texts.size(); ++i)
        list.append(i == 0 ? TextView() : between).append(texts[i]);
    return list;
}

Text FromBytes(std::string_view bytes)
{
    Text text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return CharacterOf(byte); });
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

} // namespace orvane
