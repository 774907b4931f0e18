#pragma once

#include <string>

namespace orvane::testing {

/// The bytes of a GIF picture that claims this size and holds one pixel.
std::string GifBytes(unsigned width, unsigned height);

/// The bytes up to the scan of a JPEG picture of this size: a header with nothing behind it.
std::string JpegHeaderBytes(unsigned width, unsigned height);

/// Makes the file of that name, in a folder that is there, hold these bytes.
void WriteFile(const std::string& path, const std::string& bytes);

} // namespace orvane::testing
