#include "tests/fuzz/fuzz_input.h"
#include "tests/fuzz/taking_out_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    orvane::testing::FuzzInput input(bytes, size);
    orvane::testing::CheckTakingOut(std::string(input.TakeRest()));
    return 0;
}
