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
};

/// Utf8 when the page says so (byte-order mark or charset declaration) or is so (bytes above 127
/// that are all well-formed); else Windows1252.
PageEncoding EncodingOf(std::string_view page);

/// The bytes of page code in that encoding. A character that the encoding lacks becomes "&#N;" in
/// markup and "\uXXXX" inside a SCRIPT element.
std::string EncodeForPage(TextView code, PageEncoding encoding);

/// The Windows-1252 bytes of a text; nothing when it holds a character that they lack.
std::optional<std::string> Windows1252Bytes(TextView text);

/// The text of Windows-1252 bytes; each byte is a character.
Text FromWindows1252(std::string_view bytes);

} // namespace orvane
