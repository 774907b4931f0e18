#pragma once

namespace orvane {

/// The lower- or upper-case partner of a character, one to one and without locale.
char16_t ToLower(char16_t character);
char16_t ToUpper(char16_t character);

} // namespace orvane
