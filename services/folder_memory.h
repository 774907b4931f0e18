#pragma once

#include "core/dialogs.h"
#include "core/settings.h"

namespace orvane {

/// The folder in which the last file of this purpose was found, in this run or an earlier one;
/// empty when there is none, and for FolderPurpose::Other.
Text RememberedFolder(const Settings& settings, FolderPurpose purpose);

/// Remembers the folder for the next file of this purpose; does nothing for FolderPurpose::Other.
void RememberFolder(Settings& settings, FolderPurpose purpose, TextView folder);

} // namespace orvane
