#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"

namespace orvane {

/// Fills the program's folder from the resources: help book and applet classes. A file that is the
/// same already is left alone; the author is told once when the folder cannot be written.
void InstallResources(FileStore& files, Dialogs& dialogs, TextView programFolder);

} // namespace orvane
