#include "windows/picture_blend.h"

#include <algorithm>

namespace velkor6::windows {

Rgb colourOfLong(std::int32_t bgr) {
    const auto v = static_cast<std::uint32_t>(bgr);
    return {static_cast<std::uint8_t>(v & 0xFF), static_cast<std::uint8_t>((v >> 8) & 0xFF),
            static_cast<std::uint8_t>((v >> 16) & 0xFF)};
}

std::uint8_t blendChannel(std::uint8_t picture, std::uint8_t background,
                          std::int32_t transparency) {
    const std::int32_t t = std::clamp(transparency, 0, 100);
    return static_cast<std::uint8_t>((picture * (100 - t) + background * t + 50) / 100);
}

Rgb blend(Rgb picture, Rgb background, std::int32_t transparency) {
    return {blendChannel(picture.red, background.red, transparency),
            blendChannel(picture.green, background.green, transparency),
            blendChannel(picture.blue, background.blue, transparency)};
}

RgbImage overColour(const RgbImage& picture, Rgb background, std::int32_t transparency) {
    RgbImage out = picture;
    for (Rgb& p : out.pixels)
        p = blend(p, background, transparency);
    return out;
}

bool drawOver(RgbImage& target, const RgbImage& picture, std::int32_t x, std::int32_t y,
              std::int32_t transparency) {
    // In 64 bits: x + width may pass the 32-bit range.
    const std::int64_t left = std::max<std::int64_t>(x, 0);
    const std::int64_t top = std::max<std::int64_t>(y, 0);
    const std::int64_t right =
        std::min<std::int64_t>(std::int64_t{x} + picture.width, target.width);
    const std::int64_t bottom =
        std::min<std::int64_t>(std::int64_t{y} + picture.height, target.height);
    if (left >= right || top >= bottom)
        return false;
    for (auto ty = top; ty < bottom; ++ty)
        for (auto tx = left; tx < right; ++tx) {
            Rgb& under = target.at(static_cast<std::int32_t>(tx), static_cast<std::int32_t>(ty));
            under = blend(
                picture.at(static_cast<std::int32_t>(tx - x), static_cast<std::int32_t>(ty - y)),
                under, transparency);
        }
    return true;
}

std::optional<RgbImage> cutOut(const RgbImage& picture, std::int32_t left, std::int32_t top,
                               std::int32_t width, std::int32_t height) {
    const std::int64_t x0 = std::max<std::int64_t>(left, 0);
    const std::int64_t y0 = std::max<std::int64_t>(top, 0);
    const std::int64_t x1 = width < 0
                                ? picture.width
                                : std::min<std::int64_t>(std::int64_t{left} + width, picture.width);
    const std::int64_t y1 =
        height < 0 ? picture.height
                   : std::min<std::int64_t>(std::int64_t{top} + height, picture.height);
    if (x0 >= x1 || y0 >= y1)
        return std::nullopt;
    RgbImage out(static_cast<std::int32_t>(x1 - x0), static_cast<std::int32_t>(y1 - y0));
    for (std::int32_t y = 0; y < out.height; ++y)
        for (std::int32_t x = 0; x < out.width; ++x)
            out.at(x, y) =
                picture.at(static_cast<std::int32_t>(x0 + x), static_cast<std::int32_t>(y0 + y));
    return out;
}

} // namespace velkor6::windows
