#pragma once

#include <cstdint>

namespace orvane {

/// Follows long work, and lets the author end it.
class Progress
{
public:
    virtual ~Progress() = default;

    /// `done` of `total` bytes are there; false when the author wants no more.
    [[nodiscard]] virtual bool GoOn(std::uint64_t done, std::uint64_t total) = 0;
};

} // namespace orvane
