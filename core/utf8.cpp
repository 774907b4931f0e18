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

std::size_t Utf8Length(std::string_view bytes)
{
    return bytes.empty() ? 0 : ReadUtf8(bytes).Length;
}

std::size_t FindAboveAscii(std::string_view bytes, std::size_t from)
{
    // Pages are long and most of them ASCII: 32 bytes at a time.
    constexpr std::uint64_t topBits = 0x8080808080808080;
    for (std::array<std::uint64_t, 4> some; from + sizeof some <= bytes.size();
         from += sizeof some) {
        std::memcpy(some.data(), bytes.data() + from, sizeof some);
        if (((some[0] | some[1] | some[2] | some[3]) & topBits) != 0)
            break;
    }
    while (from < bytes.size() && static_cast<unsigned char>(bytes[from]) < 0x80)
        ++from;
    return from;
}

} // namespace orvane
