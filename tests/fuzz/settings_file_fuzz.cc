#include "disk/settings_file.h"
#include "tests/fuzz/fuzz_input.h"

namespace orvane::testing {

namespace {

void Check(FuzzInput input)
{
    const Text section = FromUtf8(input.TakeText());
    const Text key = FromUtf8(input.TakeText());
    const Text value = FromUtf8(input.TakeText());
    SettingsTable settings = ReadSettings(input.TakeRest());
    Require(ReadSettings(WriteSettings(settings)) == settings, "what was read is written");
    settings[{section, key}] = value;
    Require(ReadSettings(WriteSettings(settings)) == settings, "what was stored is read");
}

} // namespace

} // namespace orvane::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    orvane::testing::Check(orvane::testing::FuzzInput(bytes, size));
    return 0;
}
