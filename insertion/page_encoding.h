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
    AsciiOnly, ///< another encoding, of which only the ASCII bytes are known
};

/// The encoding of a page. Utf8 when a byte-order mark or charset declaration says so, or when
/// there is neither and all bytes above 127 form well-formed UTF-8. AsciiOnly when the page
/// declares another charset, or has the byte-order mark of UTF-16 (no tag is found in a UTF-16
/// page, so that it is left to the author). Else Windows1252.
PageEncoding EncodingOf(std::string_view page);

/// The bytes of page code in that encoding. A character that the encoding does not have becomes
/// "&#N;" in markup and "\uXXXX" inside a SCRIPT element; in Utf8, half of a surrogate pair becomes
/// U+FFFD.
std::string EncodeForPage(TextView code, PageEncoding encoding);

/// The bytes of an attribute's value in that encoding. A character that the encoding does not have
/// becomes "&#N;", in script as well.
std::string EncodeForAttribute(TextView value, PageEncoding encoding);

/// The Windows-1252 bytes of a text; nothing when it has a character that Windows-1252 lacks.
std::optional<std::string> Windows1252Bytes(TextView text);

/// The text of Windows-1252 bytes; each byte is a character.
Text FromWindows1252(std::string_view bytes);

} // namespace orvane
