#pragma once

#include "core/text.h"

#include <optional>
#include <string_view>

namespace orvane {

/// What decides whether the browser engine can start: for root it has no sandbox for its pages, and
/// it ends the whole program unless it was told to do without one.
struct SandboxFacts
{
    bool RunsAsRoot = false;
    bool SwitchedOff = false; ///< QTWEBENGINE_DISABLE_SANDBOX is set, to whatever value
    std::string_view Flags;   ///< QTWEBENGINE_CHROMIUM_FLAGS
};

/// The facts of this process.
SandboxFacts FindSandboxFacts();

/// Why the engine must be left alone, in words for the author; nothing when it can start.
std::optional<Text> WhyEngineCannotStart(const SandboxFacts& facts);

} // namespace orvane
