// Where a list lies on its form, in the form's pixels: the part of the form's picture that a
// list view shows as its background.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>

namespace velkor6::controls {

struct PixelArea {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

// The control's Left, Top, Width and Height, read in the form's ScaleMode and converted to
// pixels: as they stand for vbPixels (3), through the form's ScaleX and ScaleY for any other
// mode, and as twips when the form tells no ScaleMode.
PixelArea areaOnForm(Object& form, Object& control, std::int32_t twipsPerPixel, const Locale& loc);

} // namespace velkor6::controls
