#pragma once

#include <cstdint>

namespace orvane {

/// Is told how far long work is, and can end it.
class Progress
{
public:
    virtual ~Progress() = default;

    /// Tells that `done` of `total` bytes are processed; false when the author wants the work to
    /// end.
    [[nodiscard]] virtual bool GoOn(std::uint64_t done, std::uint64_t total) = 0;
};

} // namespace orvane
