#pragma once

#include "delivery/required_files.h"

namespace orvane {

/// Copies the files that the author selected in one folder to another and tells which were copied;
/// takes the names that now lie there off `missing`.
void ManualCopy(const CopyDesk& desk, TextView fromFolder, TextView toFolder,
                const std::vector<Text>& selected, MissingFiles& missing);

} // namespace orvane
