#pragma once

#include "core/text.h"

#include <optional>
#include <string_view>

namespace orvane {

/// What decides whether the browser engine can start: without the sandbox around its pages it ends
/// the whole program, unless it was told to do without one.
struct SandboxFacts
{
    bool RunsAsRoot = false;
    bool CanIsolate = true;   ///< the system lets this user make namespaces
    bool SwitchedOff = false; ///< QTWEBENGINE_DISABLE_SANDBOX is set, to whatever value
    std::string_view Flags;   ///< QTWEBENGINE_CHROMIUM_FLAGS
};

/// The facts of this process.
SandboxFacts FindSandboxFacts();

/// Why the engine must be left alone, in words for the author; nothing when it can start.
std::optional<Text> WhyEngineCannotStart(const SandboxFacts& facts);

} // namespace orvane
