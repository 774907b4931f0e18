#include "tests/support/expect_text.h"

#include "core/block_scripts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace orvane::testing {

namespace {

std::string Shown(std::string_view bytes)
{
    std::string shown;
    for (const char byte : bytes) {
        if (byte == '\r')
            shown += "<CR>";
        else if (byte == '\n')
            shown += "<LF>";
        else if (static_cast<unsigned char>(byte) < 0x20)
            shown.append("<").append(std::to_string(byte)).append(">");
        else
            shown.push_back(byte);
    }
    return shown;
}

std::string_view LineFrom(std::string_view bytes, std::size_t start)
{
    const std::size_t end = bytes.find('\n', start);
    return bytes.substr(std::min(start, bytes.size()),
                        end == std::string_view::npos ? end : end + 1 - start);
}

/// The text of a block with its script, for which "§" stands.
std::string WithScript(std::string bytes)
{
    constexpr std::string_view mark = "\xC2\xA7";
    constexpr std::string_view attribute = "data-orvane=\"";
    const std::size_t place = bytes.find(mark);
    if (place == std::string::npos)
        return bytes;
    const std::size_t from = bytes.find(attribute) + attribute.size();
    const std::string kind = bytes.substr(from, bytes.find('"', from) - from);
    const TextView script = BlockScript(FromUtf8(kind.substr(0, kind.rfind('-'))));
    EXPECT_FALSE(script.empty()) << kind;
    return bytes.replace(place, mark.size(),
                         "<script data-orvane-run=\"" + kind + "\">" + ToUtf8(script) +
                             "</script>");
}

} // namespace

void ExpectSameBytes(std::string_view expected, std::string_view actual)
{
    if (expected == actual)
        return;
    std::size_t start = 0;
    for (int line = 1;; ++line) {
        const auto wanted = LineFrom(expected, start);
        const auto got = LineFrom(actual, start);
        if (wanted != got) {
            ADD_FAILURE() << "line " << line << " differs\n  expected: " << Shown(wanted)
                          << "\n  actual:   " << Shown(got);
            return;
        }
        start += wanted.size();
    }
}

void ExpectSameText(TextView expected, TextView actual)
{
    ExpectSameBytes(ToUtf8(expected), ToUtf8(actual));
    // Halves of surrogate pairs look alike as bytes.
    EXPECT_TRUE(expected == actual);
}

std::string ExpectedBytes(const std::string& name)
{
    std::ifstream file(ORVANE_EXPECTED_FOLDER "/" + name, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return WithScript(bytes.str());
}

Text ExpectedText(const std::string& name)
{
    return FromUtf8(ExpectedBytes(name));
}

std::vector<std::string> ExpectedNames(std::string_view ending)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(ORVANE_EXPECTED_FOLDER))
        if (std::string name = entry.path().filename().string(); name.ends_with(ending))
            names.push_back(std::move(name));
    std::ranges::sort(names);
    return names;
}

} // namespace orvane::testing
