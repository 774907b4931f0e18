#pragma once

#include <string_view>

namespace orvane {

/// What a page says about its own encoding.
enum class DeclaredCharset
{
    None,
    Utf8,
    Windows1252, ///< under any of its names, Latin-1 and ASCII among them
    Other,
};

/// The first declaration that a browser would go by: a META element within the first 4096 bytes,
/// else the encoding of an XML declaration. Comments and the values of other tags do not count;
/// a byte-order mark is the caller's to see.
DeclaredCharset DeclaredCharsetOf(std::string_view page);

} // namespace orvane
