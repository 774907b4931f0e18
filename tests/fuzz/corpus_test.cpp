#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" {
int animation_project_fuzz(const std::uint8_t* bytes, std::size_t size);
int auto_insertion_fuzz(const std::uint8_t* bytes, std::size_t size);
int file_names_fuzz(const std::uint8_t* bytes, std::size_t size);
int page_encoding_fuzz(const std::uint8_t* bytes, std::size_t size);
int settings_file_fuzz(const std::uint8_t* bytes, std::size_t size);
int taking_out_fuzz(const std::uint8_t* bytes, std::size_t size);
}

namespace orvane::testing {
namespace {

struct Target
{
    const char* Name;
    int (*Run)(const std::uint8_t*, std::size_t);
};

class CorpusTest : public ::testing::TestWithParam<Target>
{
protected:
    static void Run(const std::string& input)
    {
        EXPECT_NO_THROW(
            GetParam().Run(reinterpret_cast<const std::uint8_t*>(input.data()), input.size()))
            << input;
    }
};

/// Every input of the fuzzers' small corpus, and every two of them in one.
TEST_P(CorpusTest, IsReplayed)
{
    std::vector<std::string> inputs;
    const std::filesystem::path folder(ORVANE_CORPUS_FOLDER);
    for (const auto& entry : std::filesystem::directory_iterator(folder / GetParam().Name)) {
        std::ifstream file(entry.path(), std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    ASSERT_FALSE(inputs.empty());
    for (const std::string& first : inputs) {
        Run(first);
        for (const std::string& second : inputs)
            Run(first + second);
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, CorpusTest,
                         ::testing::Values(Target{"animation_project", animation_project_fuzz},
                                           Target{"auto_insertion", auto_insertion_fuzz},
                                           Target{"file_names", file_names_fuzz},
                                           Target{"page_encoding", page_encoding_fuzz},
                                           Target{"settings_file", settings_file_fuzz},
                                           Target{"taking_out", taking_out_fuzz}),
                         [](const auto& target) { return std::string(target.param.Name); });

} // namespace
} // namespace orvane::testing
