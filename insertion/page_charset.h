#pragma once

#include <string_view>

namespace orvane {

/// What a page says about its own encoding.
enum class DeclaredCharset
{
    None,
    Utf8,        ///< UTF-16 too, in which no page that can be read byte by byte is
    Windows1252, ///< under any of its names, those of Latin-1 and ASCII included
    Other,
};

/// The declaration that a browser would follow: the first META element with a charset in the first
/// 4096 bytes, else the encoding of an XML declaration there. Comments and the values of other tags
/// do not count, and a byte-order mark is not looked at.
DeclaredCharset DeclaredCharsetOf(std::string_view page);

} // namespace orvane
