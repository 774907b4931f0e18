#include "tests/support/picture_files.h"

#include <gtest/gtest.h>

#include <fstream>

namespace orvane::testing {

namespace {

std::string Bytes(std::initializer_list<unsigned> values)
{
    std::string bytes;
    for (const unsigned value : values)
        bytes.push_back(static_cast<char>(value & 0xff));
    return bytes;
}

} // namespace

std::string GifBytes(unsigned width, unsigned height)
{
    return "GIF89a" + Bytes({width, width >> 8, height, height >> 8, 0x80, 0, 0}) + // two colours
           Bytes({0, 0, 0, 0xff, 0, 0}) +                                           // black and red
           Bytes({0x2c, 0, 0, 0, 0, 1, 0, 1, 0, 0}) + // one pixel at the corner
           Bytes({2, 2, 0x44, 0x01, 0, 0x3b});
}

std::string JpegHeaderBytes(unsigned width, unsigned height)
{
    return Bytes({0xff, 0xd8, 0xff, 0xe0, 0, 16}) + "JFIF" +
           Bytes({0, 1, 1, 0, 0, 1, 0, 1, 0, 0}) + // version and density
           Bytes({0xff, 0xc0, 0, 11, 8, height >> 8, height, width >> 8, width, 1, 1, 0x11, 0}) +
           Bytes({0xff, 0xda, 0, 8, 1, 1, 0, 0, 63, 0});
}

void WriteFile(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.flush()) << path;
}

} // namespace orvane::testing
