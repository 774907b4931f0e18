#include "effects/applet/animation_project.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Any bytes are a project of at least one row, of which 31 at most are filled; what was read can
/// be written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto read = orvane::ReadProject(std::string(bytes, bytes + size));
    const auto filled = std::min<std::ptrdiff_t>(31, std::ssize(read.Rows));
    const bool restIsEmpty =
        std::all_of(read.Rows.begin() + filled, read.Rows.end(),
                    [](const orvane::ImageRow& row) { return row == orvane::ImageRow(); });
    if (read.Rows.empty() || !restIsEmpty || orvane::ProjectBytes(read).empty())
        std::abort();
    return 0;
}
