#pragma once

#include "core/payload.h"

#include <vector>

namespace orvane {

/// The first names of `lstFilesToUpload`: the class files and others that each effect of this kind
/// needs, unless it is a block, and the page script where the author wants it; "No Required Files."
/// in place of none.
std::vector<Text> FilesToUpload(const FinishedPayload& payload);

/// The names that follow on the last page: the author's own files; none for an effect that needs no
/// files.
std::vector<Text> ListedFiles(const FinishedPayload& payload);

} // namespace orvane
