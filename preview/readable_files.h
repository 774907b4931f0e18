#pragma once

#include "core/file_store.h"
#include "core/payload.h"

#include <vector>

namespace orvane {

/// The names of those files in the folder of the preview page that the effect may read: the ones
/// that it needs, the page script, and what else its text names. No script of a Web server is among
/// them, since that holds passwords.
std::vector<Text> ReadableFiles(const FinishedPayload& payload, const FileStore& files,
                                TextView folder);

} // namespace orvane
