#pragma once

#include "core/payload.h"

#include <vector>

namespace orvane {

/// What `lstFilesToUpload` holds from the start: the files that the effect always needs, and
/// the page script where the author wants it.
std::vector<Text> FilesToUpload(const FinishedPayload& payload);

/// What the last page adds behind them: the author's own files, none for an effect without files.
std::vector<Text> ListedFiles(const FinishedPayload& payload);

} // namespace orvane
