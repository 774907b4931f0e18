#include "preview/engine_sandbox.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

struct SandboxCase
{
    const char* Name;
    SandboxFacts Facts;
    bool CanStart;
};
class EngineSandboxTest : public ::testing::TestWithParam<SandboxCase>
{
};
TEST_P(EngineSandboxTest, RefusesRootAloneUnlessTheSandboxIsSwitchedOff)
{
    EXPECT_EQ(!WhyEngineCannotStart(GetParam().Facts), GetParam().CanStart);
}
INSTANTIATE_TEST_SUITE_P(
    , EngineSandboxTest,
    ::testing::Values(
        SandboxCase{"Author", {}, true}, SandboxCase{"Root", {.RunsAsRoot = true}, false},
        SandboxCase{"RootWithout", {.RunsAsRoot = true, .SwitchedOff = true}, true},
        SandboxCase{"Flag", {.RunsAsRoot = true, .Flags = "--no-sandbox"}, true},
        SandboxCase{"FlagAmongOthers",
                    {.RunsAsRoot = true, .Flags = "--disable-gpu  --no-sandbox=1 --x"},
                    true},
        SandboxCase{"OtherFlag",
                    {.RunsAsRoot = true, .Flags = "--no-sandbox-and-elevated --x=--no-sandbox"},
                    false}),
    [](const auto& test) { return test.param.Name; });

} // namespace
} // namespace orvane::testing
