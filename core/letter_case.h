#pragma once

namespace orvane {

/// The character in lower or upper case, independent of any locale. Latin, Greek and Cyrillic
/// letters change, every other character stays as it is.
char16_t ToLower(char16_t character);
char16_t ToUpper(char16_t character);

} // namespace orvane
