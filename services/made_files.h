#pragma once

#include "core/file_store.h"
#include "core/payload.h"

namespace orvane {

/// Writes the files that the effect makes to where support files lie; one with a password for its
/// owner alone.
[[nodiscard]] Done WriteMadeFiles(FileStore& files, TextView programFolder,
                                  const EffectPayload& effect);

/// Removes those of them again that hold a password: they were made for one delivery alone.
void RemoveSecretFiles(FileStore& files, TextView programFolder, const EffectPayload& effect);

} // namespace orvane
