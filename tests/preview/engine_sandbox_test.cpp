#include "preview/engine_sandbox.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(EngineSandboxTest, RefusesRootAloneUnlessTheSandboxIsSwitchedOff)
{
    const std::pair<SandboxFacts, bool> cases[] = {
        {{}, true},
        {{.RunsAsRoot = true}, false},
        {{.RunsAsRoot = true, .SwitchedOff = true}, true},
        {{.RunsAsRoot = true, .Flags = "--no-sandbox"}, true},
        {{.RunsAsRoot = true, .Flags = "--disable-gpu  --no-sandbox=1 --x"}, true},
        {{.RunsAsRoot = true, .Flags = "--no-sandbox-and-elevated --x=--no-sandbox"}, false}};
    for (const auto& [facts, canStart] : cases)
        EXPECT_EQ(!WhyEngineCannotStart(facts), canStart) << facts.Flags;
}

} // namespace
} // namespace orvane::testing
