#include "core/utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvane {

namespace {

constexpr char16_t replacementCharacter = 0xFFFD;

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
    std::size_t Length = 0; ///< 0 for an ill-formed one
    char32_t Point = replacementCharacter;
};

/// The well-formed sequence at the start of `bytes`, which are not empty.
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

/// The place of the first unit with one of the bits that `high` has in each of its units. Pages are
/// long and most of them ASCII: 32 bytes at a time.
template <class Unit, std::uint64_t high>
std::size_t FindAbove7Bits(std::basic_string_view<Unit> units, std::size_t from)
{
    constexpr std::size_t atOnce = 32 / sizeof(Unit);
    for (std::array<std::uint64_t, 4> some; from + atOnce <= units.size(); from += atOnce) {
        std::memcpy(some.data(), units.data() + from, sizeof some);
        if (((some[0] | some[1] | some[2] | some[3]) & high) != 0)
            break;
    }
    while (from < units.size() && (units[from] & Unit(high)) == 0)
        ++from;
    return from;
}

} // namespace

std::u16string FromUtf8(std::string_view bytes)
{
    std::u16string text;
    text.reserve(bytes.size());
    while (true) {
        const std::size_t length = FindAboveAscii(bytes, 0);
        text.resize(text.size() + length);
        std::copy_n(bytes.data(), length, text.end() - static_cast<std::ptrdiff_t>(length));
        bytes.remove_prefix(length);
        if (bytes.empty())
            return text;
        const Utf8Sequence sequence = ReadUtf8(bytes);
        if (sequence.Point >= 0x10000) {
            const char32_t offset = sequence.Point - 0x10000;
            text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
        } else {
            text.push_back(static_cast<char16_t>(sequence.Point));
        }
        // Of an ill-formed sequence one byte counts.
        bytes.remove_prefix(sequence.Length == 0 ? 1 : sequence.Length);
    }
}

std::string ToUtf8(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (true) {
        const std::size_t length = FindAboveAscii(text, 0);
        bytes.resize(bytes.size() + length);
        std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length),
                       bytes.end() - static_cast<std::ptrdiff_t>(length),
                       [](char16_t unit) { return static_cast<char>(unit); });
        text.remove_prefix(length);
        if (text.empty())
            return bytes;
        const bool isPair = text.size() > 1 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]);
        if (isPair)
            AppendUtf8(bytes, 0x10000 + ((text[0] - 0xD800u) << 10) + (text[1] - 0xDC00u));
        else if (IsHighSurrogate(text[0]) || IsLowSurrogate(text[0]))
            AppendUtf8(bytes, replacementCharacter);
        else
            AppendUtf8(bytes, text[0]);
        text.remove_prefix(isPair ? 2 : 1);
    }
}

std::size_t Utf8Length(std::string_view bytes)
{
    return bytes.empty() ? 0 : ReadUtf8(bytes).Length;
}

std::size_t FindAboveAscii(std::string_view bytes, std::size_t from)
{
    return FindAbove7Bits<char, std::uint64_t{0x8080808080808080}>(bytes, from);
}

std::size_t FindAboveAscii(std::u16string_view text, std::size_t from)
{
    return FindAbove7Bits<char16_t, std::uint64_t{0xFF80FF80FF80FF80}>(text, from);
}

} // namespace orvane
