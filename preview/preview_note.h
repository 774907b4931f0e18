#pragma once

#include "core/file_store.h"
#include "core/payload.h"

#include <functional>

namespace orvane {

/// What the pane cannot show of an effect, and why, in words for the author; empty when it shows
/// all. Without the page script these are the limits of today's browsers; in any case it names the
/// files of the effect that are missing in `folder`, where the preview page lies.
Text PreviewNote(const FinishedPayload& payload, const FileStore& files, TextView folder);

/// The same for a page beside which the effect finds those of its files for which `isThere` is
/// true.
Text PreviewNote(const FinishedPayload& payload,
                 const std::function<bool(const Text& name)>& isThere);

/// Whether the effect is seen in the browser's status line alone, as some are without the page
/// script.
bool RunsInStatus(const FinishedPayload& payload);

} // namespace orvane
