#pragma once

#include "core/file_store.h"
#include "core/settings.h"

#include <vector>

namespace orvane {

/// The files of a kind, such as "Pages", that the author used last, newest first; those that are
/// gone are left out.
std::vector<Text> RecentFiles(const Settings& settings, const FileStore& files, TextView kind);

/// Stores the file with this full path as the newest of ten.
void PutRecentFile(Settings& settings, TextView kind, TextView path);

} // namespace orvane
