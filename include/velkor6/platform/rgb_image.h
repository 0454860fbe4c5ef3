// A picture as rows of red, green and blue bytes, top row first: what the library blends, and
// what the window system reads from and writes to its bitmaps and device contexts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velkor6 {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const Rgb&, const Rgb&) = default;
};

struct RgbImage {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<Rgb> pixels; // width * height, row by row from the top

    RgbImage() = default;
    RgbImage(std::int32_t w, std::int32_t h, Rgb fill = {})
        : width(w), height(h), pixels(static_cast<std::size_t>(w > 0 && h > 0 ? w : 0) *
                                          static_cast<std::size_t>(w > 0 && h > 0 ? h : 0),
                                      fill) {}
    Rgb& at(std::int32_t x, std::int32_t y) {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
    const Rgb& at(std::int32_t x, std::int32_t y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

} // namespace velkor6
