#pragma once

#include "delivery/required_files.h"

#include <vector>

namespace orvane {

/// Copies the selected files from one folder to another, asks before it overwrites one, and tells
/// the author which were copied; their names are taken off `missing`. With none selected the author
/// is told to select one. Stops when the author cancels; any other fault of a file is told and
/// skips it.
void ManualCopy(const CopyJob& job, TextView fromFolder, TextView toFolder,
                const std::vector<Text>& selected, MissingFiles& missing);

} // namespace orvane
