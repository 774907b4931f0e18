#pragma once

#include "core/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::testing {

/// Fails the test with the first line that differs, in which CR, LF and control characters are made
/// visible.
void ExpectSameText(TextView expected, TextView actual);
void ExpectSameBytes(std::string_view expected, std::string_view actual);

/// The bytes of a file of tests/expected, with the script of a block where "§" stands for it; fails
/// the test and gives none when it is missing.
std::string ExpectedBytes(const std::string& name);

/// The same, read as UTF-8.
Text ExpectedText(const std::string& name);

/// The names of the files of tests/expected with this ending, sorted.
std::vector<std::string> ExpectedNames(std::string_view ending);

} // namespace orvane::testing
