#pragma once

#include "core/text.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// How text that goes into a page becomes bytes.
enum class PageEncoding
{
    Windows1252,
    Utf8,
    AsciiOnly, ///< the page has an encoding of its own, in which only these bytes are sure
};

/// Utf8 when the page says so (byte-order mark or charset declaration) or, saying nothing, is so
/// (bytes above 127 that are all well-formed). AsciiOnly when it declares another charset or has
/// the byte-order mark of UTF-16, whose pages are opaque bytes: no tag is found in them, so that
/// they are left to the author. Else Windows1252.
PageEncoding EncodingOf(std::string_view page);

/// The bytes of page code in that encoding. A character that the encoding lacks becomes "&#N;" in
/// markup and "\uXXXX" inside a SCRIPT element; half of a surrogate pair in Utf8 becomes U+FFFD.
std::string EncodeForPage(TextView code, PageEncoding encoding);

/// The bytes of an attribute's value in that encoding, event attributes included: whatever the
/// value holds, a lacking character becomes "&#N;".
std::string EncodeForAttribute(TextView value, PageEncoding encoding);

/// The Windows-1252 bytes of a text; nothing when it holds a character that they lack.
std::optional<std::string> Windows1252Bytes(TextView text);

/// The text of Windows-1252 bytes; each byte is a character.
Text FromWindows1252(std::string_view bytes);

} // namespace orvane
