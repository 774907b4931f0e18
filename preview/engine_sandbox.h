#pragma once

#include "core/text.h"

#include <optional>
#include <string_view>

namespace orvane {

/// What decides whether the browser engine can start. For the user root the engine has no sandbox,
/// and would end the whole program unless it is told to run without one.
struct SandboxFacts
{
    bool RunsAsRoot = false;
    bool SwitchedOff = false; ///< QTWEBENGINE_DISABLE_SANDBOX is set, to whatever value
    std::string_view Flags;   ///< QTWEBENGINE_CHROMIUM_FLAGS
};

/// The facts of this process.
SandboxFacts FindSandboxFacts();

/// Why the engine must not be started, in words for the author; nothing when it can start.
std::optional<Text> WhyEngineCannotStart(const SandboxFacts& facts);

} // namespace orvane
