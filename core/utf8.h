#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

/// Whether a 16-bit character is the first or the second half of a surrogate pair.
constexpr bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The text of UTF-8 bytes; each byte that belongs to no well-formed sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view bytes);

/// The UTF-8 bytes of a text; a lone half of a surrogate pair becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// The length in bytes of the well-formed character at the start of `bytes`; 0 when there is none.
std::size_t Utf8Length(std::string_view bytes);

/// The place, counted from 0, of the first byte or character above 127 at or behind `from`; the
/// size when there is none.
std::size_t FindAboveAscii(std::string_view bytes, std::size_t from);
std::size_t FindAboveAscii(std::u16string_view text, std::size_t from);

} // namespace orvane
