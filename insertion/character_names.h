#pragma once

#include <string_view>

namespace orvane {

/// The character that a name such as "amp" or "eacute" stands for in a reference; 0 for a name that
/// is not known. Known are the names of Latin-1, of the punctuation marks that authors write so,
/// and of what HTML needs itself.
char16_t CharacterNamed(std::string_view name);

} // namespace orvane
