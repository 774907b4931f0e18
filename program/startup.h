#pragma once

#include "core/workbench.h"

namespace orvane {

/// The window that the program opens with.
enum class FirstWindow
{
    OVMain,
    DownloadOV,
};

/// Whether the first character of a browser's version, read as a number, is at least 4. "10.0"
/// fails, since only its "1" is looked at; so does a version that is not known.
bool PassesVersionGate(const RegistryVariant& version);

/// Reads the folder used last into the shared state, checks the browser's version where the
/// platform tells one, asks the author when it is too old, and gives the window to show. The caller
/// shows that and then calls SetWizardParam().
FirstWindow StartUp(Workbench& bench);

/// Sets, in the shared state, the PARAM line that marks applets made by this program; called once
/// the first window is shown.
void SetWizardParam(OrvaneCore& core);

/// Sets the folders in which images, links and sounds were found last to the program's folder;
/// called when the main window is made.
void PrepareMainWindow(OrvaneCore& core);

} // namespace orvane
