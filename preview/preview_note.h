#pragma once

#include "core/file_store.h"
#include "core/payload.h"

namespace orvane {

/// What the pane cannot show of an effect, and why, in words for the author; empty when it shows
/// all, as it does with the page script beside it. Names the files that are missing in the folder,
/// which is where the preview page lies.
Text PreviewNote(const FinishedPayload& payload, const FileStore& files, TextView folder);

/// Whether the effect shows in the browser's status line alone.
bool RunsInStatus(EffectKind kind);

} // namespace orvane
