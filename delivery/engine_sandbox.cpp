#include "delivery/engine_sandbox.h"

#include <cstdlib>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

namespace {

/// Whether a process can put itself into namespaces of its own; a child tries it, so that this one
/// stays where it is.
bool CanMakeNamespaces()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET) == 0 ? 0 : 1);
    int status = 1;
    return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

/// Whether the engine's flags, separated by blanks, switch the sandbox off.
bool SwitchOffSandbox(std::string_view flags)
{
    while (!flags.empty()) {
        std::string_view flag = flags.substr(0, flags.find(' '));
        flags.remove_prefix(flag.size() < flags.size() ? flag.size() + 1 : flag.size());
        flag = flag.substr(0, flag.find('='));
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
    facts.CanIsolate = facts.SwitchedOff || CanMakeNamespaces();
    return facts;
}

std::optional<Text> WhyEngineCannotStart(const SandboxFacts& facts)
{
    if (facts.SwitchedOff || SwitchOffSandbox(facts.Flags))
        return std::nullopt;
    if (facts.RunsAsRoot)
        return u"The built-in preview does not run for the user root, because its protection "
               u"against harmful pages (the sandbox) cannot work then.  Start Orvane as an ordinary "
               u"user, or set the environment variable QTWEBENGINE_DISABLE_SANDBOX to 1 before you "
               u"start it.";
    if (!facts.CanIsolate)
        return u"The built-in preview does not run here, because this system does not let its "
               u"protection against harmful pages (the sandbox) work.  Allow user namespaces on "
               u"this system, or set the environment variable QTWEBENGINE_DISABLE_SANDBOX to 1 "
               u"before you start Orvane.";
    return std::nullopt;
}

} // namespace orvane
