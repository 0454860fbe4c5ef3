// Windows bitmap files (.BMP): the library's own reader and writer.
#pragma once

#include "velkor6/platform/rgb_image.h"

#include <optional>
#include <string>
#include <string_view>

namespace velkor6::windows {

// Reads uncompressed bitmaps: 1, 4 and 8 bits with a colour table, 16 bits (5-5-5), 24 and 32
// bits, 16 and 32 bits with colour masks (BI_BITFIELDS); bottom-up and top-down rows; the
// core (12-byte) and the 40, 52, 56, 108 and 124-byte headers. nullopt for anything else,
// compressed (RLE, JPEG, PNG) bitmaps included, and for a file cut short.
std::optional<RgbImage> readBmp(std::string_view bytes);

// A 24-bit bottom-up bitmap with a 40-byte header, rows padded to 4 bytes, 96 dots per inch.
std::string writeBmp(const RgbImage& image);

} // namespace velkor6::windows
