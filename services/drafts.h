#pragma once

#include "core/complaint.h"
#include "core/file_store.h"

#include <optional>

namespace orvane {

/// The full path of the draft of an effect; `effect` is the name of its menu command.
Text DraftPathOf(TextView stateFolder, ControlName effect);

/// The full path of the fields with which that effect was delivered last, which are kept as a draft
/// is.
Text LastTimePathOf(TextView stateFolder, ControlName effect);

/// The text of the draft in this file; nothing when there is none that can be read.
std::optional<Text> ReadDraftFile(const FileStore& files, TextView path);

/// Stores a draft for its owner alone, with its folder when that is missing; a link in its place is
/// not followed. A failure is ignored: the author did not ask for a draft to be saved. Expects a
/// path with a folder.
void WriteDraftFile(FileStore& files, TextView path, TextView draft);

/// Deletes a draft, if there is one.
void DropDraftFile(FileStore& files, TextView path);

} // namespace orvane
