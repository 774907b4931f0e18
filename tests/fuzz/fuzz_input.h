#pragma once

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace orvane::testing {

/// Throws std::logic_error with the words `what` unless the condition holds. The fuzzer then keeps
/// the input, and a test that replays it fails.
inline void Require(bool holds, const char* what)
{
    if (!holds)
        throw std::logic_error(what);
}

/// A fuzzer's input, read piece by piece: a first byte, of which each bit is a choice, then texts
/// separated by "|||", so that an input can be written by hand.
class FuzzInput
{
public:
    /// The bytes must outlive the object.
    FuzzInput(const std::uint8_t* bytes, std::size_t size)
    {
        if (size == 0)
            return;
        m_choices = bytes[0];
        m_rest = std::string_view(reinterpret_cast<const char*>(bytes) + 1, size - 1);
    }

    /// The bit with this number, 0 to 7, of the first byte.
    bool Choice(unsigned bit) const { return ((m_choices >> bit) & 1) != 0; }

    /// The text up to the next "|||" or the end; empty when nothing is left.
    std::string_view TakeText()
    {
        constexpr std::string_view mark = "|||";
        const std::string_view text = m_rest.substr(0, m_rest.find(mark));
        m_rest.remove_prefix(std::min(text.size() + mark.size(), m_rest.size()));
        return text;
    }

    /// Everything that was not taken yet, with its "|||".
    std::string_view TakeRest() { return std::exchange(m_rest, {}); }

private:
    unsigned m_choices = 0;
    std::string_view m_rest;
};

} // namespace orvane::testing
