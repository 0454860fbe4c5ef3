// Translucent pictures: a picture blended over a plain colour or over what lies under it.
#pragma once

#include "velkor6/platform/rgb_image.h"

#include <cstdint>
#include <optional>

namespace velkor6::windows {

// The colour of a VB colour Long (&HBBGGRR); the top byte is ignored.
Rgb colourOfLong(std::int32_t bgr);

// One channel at `transparency` percent (clamped to 0 ... 100): (picture * (100 - t) +
// background * t + 50) \ 100, so 0 keeps the picture, 100 gives the background, and halves
// round up.
std::uint8_t blendChannel(std::uint8_t picture, std::uint8_t background, std::int32_t transparency);
Rgb blend(Rgb picture, Rgb background, std::int32_t transparency);

// The picture over a plain background colour.
RgbImage overColour(const RgbImage& picture, Rgb background, std::int32_t transparency);

// Blends the picture over the target in place with its top-left corner at x, y; what falls
// outside the target is left out. False when nothing of the picture lands on the target.
bool drawOver(RgbImage& target, const RgbImage& picture, std::int32_t x, std::int32_t y,
              std::int32_t transparency);

// The part of the picture from left, top, width by height (a width or height below 0 reaches to
// the picture's edge), cut to the picture; nullopt when nothing of it lies inside.
std::optional<RgbImage> cutOut(const RgbImage& picture, std::int32_t left, std::int32_t top,
                               std::int32_t width, std::int32_t height);

} // namespace velkor6::windows
