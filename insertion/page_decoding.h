#pragma once

#include "core/text.h"

namespace orvane {

/// An attribute's value with the characters that its references stand for: "&amp;", "&quot;",
/// "&lt;", "&gt;" and those by number. Other references stay.
Text WithoutReferences(TextView value);

/// What a quoted text of a script says: without its backslashes, and with the characters that "\u"
/// and four digits stand for.
Text WithoutBackslashes(TextView quoted);

/// An address with the characters that "%20" and the like stand for, as UTF-8.
Text WithoutPercents(TextView address);

} // namespace orvane
