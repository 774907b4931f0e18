#pragma once

#include "core/complaint.h"
#include "core/file_store.h"

#include <optional>

namespace orvane {

/// Where the draft of an effect lies; `effect` is the name of its menu command.
Text DraftPathOf(TextView stateFolder, ControlName effect);

/// The text of a draft; nothing when there is none that can be read.
std::optional<Text> ReadDraftFile(const FileStore& files, TextView path);

/// Keeps a draft, making its folder when it is missing. A draft that cannot be written is lost
/// silently: it is no work that the author asked to save.
void WriteDraftFile(FileStore& files, TextView path, TextView draft);

/// Throws a draft away, if there is one.
void DropDraftFile(FileStore& files, TextView path);

} // namespace orvane
