#pragma once

#include "delivery/payload.h"

#include <string>

namespace orvane {

/// The whole text of a new page around the effect.
Text NewPageText(const FinishedPayload& payload);

/// The bytes of that page, as SaveHTMLtoFile() writes them.
std::string NewPageBytes(const FinishedPayload& payload);

} // namespace orvane
