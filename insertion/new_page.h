#pragma once

#include "core/file_store.h"
#include "core/payload.h"

#include <string>

namespace orvane {

/// The whole text of a new page around the effect.
Text NewPageText(const FinishedPayload& payload);

/// The bytes of NewPageText() in Windows-1252, with the page script's lines where the payload wants
/// them.
std::string NewPageBytes(const FinishedPayload& payload);

/// Writes a new page around the effect, over a file that exists; after a failure that file is as it
/// was.
[[nodiscard]] Done SaveHTMLtoFile(FileStore& files, TextView path, const FinishedPayload& payload);

} // namespace orvane
