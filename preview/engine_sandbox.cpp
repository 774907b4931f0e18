#include "preview/engine_sandbox.h"

#include <cstdlib>

#include <unistd.h>

namespace orvane {

namespace {

/// Whether the engine's flags, separated by blanks, switch the sandbox off.
bool SwitchOffSandbox(std::string_view flags)
{
    while (!flags.empty()) {
        std::string_view flag = TakeUntil(flags, ' ');
        flag = TakeUntil(flag, '=');
        if (flag == "--no-sandbox" || flag == "-no-sandbox")
            return true;
    }
    return false;
}

} // namespace

SandboxFacts FindSandboxFacts()
{
    const char* flags = std::getenv("QTWEBENGINE_CHROMIUM_FLAGS");
    SandboxFacts facts;
    facts.RunsAsRoot = geteuid() == 0;
    facts.SwitchedOff = std::getenv("QTWEBENGINE_DISABLE_SANDBOX") != nullptr;
    facts.Flags = flags ? flags : "";
    return facts;
}

std::optional<Text> WhyEngineCannotStart(const SandboxFacts& facts)
{
    if (!facts.RunsAsRoot || facts.SwitchedOff || SwitchOffSandbox(facts.Flags))
        return std::nullopt;
    return u"The built-in preview does not run for the user root, because its protection against "
           u"harmful pages (the sandbox) cannot work then.  Start Orvane as an ordinary user, or "
           u"set the environment variable QTWEBENGINE_DISABLE_SANDBOX to 1 before you start it.";
}

} // namespace orvane
