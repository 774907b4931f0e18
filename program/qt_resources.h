#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"

namespace orvane {

/// Writes the help book with its pictures, the applet classes and the page script from the
/// program's resources to its folder, and makes the folder if it is missing. A file with the same
/// content is left alone. Stops at the first file that cannot be written, and tells the author.
void InstallResources(FileStore& files, Dialogs& dialogs, TextView programFolder);

} // namespace orvane
