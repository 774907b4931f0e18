#pragma once

#include "core/workbench.h"

namespace orvane {

/// The window that the program opens with.
enum class FirstWindow
{
    OVMain,
    DownloadOV,
};

/// Whether a browser version's first character, read as a number, reaches 4. "10.0" fails: only one
/// character is looked at.
bool PassesVersionGate(const RegistryVariant& version);

/// Loads the shared state, applies the version gate with its questions, and tells which window to
/// show. The caller shows it and then calls SetWizardParam().
FirstWindow StartUp(Workbench& bench);

/// Sets the PARAM line that marks the program's applets; called once the first window is shown.
void SetWizardParam(OrvaneCore& core);

/// Sets what the main window prepares when it loads: the two folder memories.
void PrepareMainWindow(OrvaneCore& core);

} // namespace orvane
