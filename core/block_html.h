#pragma once

#include "core/block.h"

namespace orvane {

/// Whether a character is one that no page shows.
bool IsControl(char16_t c);

/// An attribute of a tag, with a blank in front; empty for a name that no tag can hold.
Text AttributeInHtml(TextView name, TextView value);

/// The content of a block as it stands inside its root.
Text ContentInHtml(const Block& block);

} // namespace orvane
