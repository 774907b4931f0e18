#pragma once

#include "core/file_store.h"
#include "core/settings.h"

#include <vector>

namespace orvane {

/// The kind of the pages that effects were put into.
inline constexpr TextView recentPages = u"Pages";

/// The full paths of the files of a kind, such as "Pages", that the author used last, newest first;
/// files that no longer exist are left out.
std::vector<Text> RecentFiles(const Settings& settings, const FileStore& files, TextView kind);

/// The same with those that no longer exist.
std::vector<Text> RecentFilesAndGone(const Settings& settings, TextView kind);

/// Stores the file with this full path as the newest of at most ten; does nothing for a path with a
/// line feed in it.
void PutRecentFile(Settings& settings, TextView kind, TextView path);

} // namespace orvane
