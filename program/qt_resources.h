#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"

namespace orvane {

/// Writes the help book with its pictures, the applet classes and the page script from the
/// program's resources to its folder, and makes the folder if it is missing. A file with the same
/// content is left alone; none is opened when all are as the last run of this build left them.
/// `build` tells it from other builds of the program. Stops at the first file that cannot be
/// written, and tells the author.
void InstallResources(FileStore& files, Dialogs& dialogs, TextView programFolder, TextView build);

} // namespace orvane
