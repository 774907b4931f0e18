#pragma once

#include "core/text.h"

namespace orvane {

/// A text or an attribute's value with the characters that its references stand for: those by
/// number and those that CharacterNamed() knows. Other references stay.
Text WithoutReferences(TextView value);

/// What a quoted text of a script says: without its backslashes, and with the characters that "\u"
/// and four digits stand for.
Text WithoutBackslashes(TextView quoted);

} // namespace orvane
