#include "core/checksum.h"

#include <cstdint>

namespace orvane {

std::string ChecksumOf(std::string_view bytes)
{
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
    constexpr std::string_view digits = "0123456789abcdef";
    std::string checksum;
    for (int shift = 60; shift >= 0; shift -= 4)
        checksum.push_back(digits[(sum >> shift) & 0xF]);
    return checksum;
}

} // namespace orvane
