#include "controls/list_background.h"

#include "controls/control_access.h"
#include "core/convert.h"

#include <cmath>
#include <exception>
#include <optional>

namespace velkor6::controls {
namespace {

constexpr std::int32_t scalePixels = 3;

std::optional<std::int32_t> scaleModeOf(Object& form, const Locale& loc) {
    try {
        return toLong(get(form, u"ScaleMode"), loc);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace

PixelArea areaOnForm(Object& form, Object& control, std::int32_t twipsPerPixel, const Locale& loc) {
    const std::optional<std::int32_t> mode = scaleModeOf(form, loc);
    const auto pixels = [&](std::u16string_view property, std::u16string_view scaleMethod) {
        const double length = toDouble(get(control, property), loc);
        if (mode == scalePixels)
            return static_cast<std::int32_t>(std::lround(length));
        if (!mode)
            return static_cast<std::int32_t>(std::lround(length / twipsPerPixel));
        const Variant converted = invokeMethod(
            form, scaleMethod,
            {Variant(static_cast<float>(length)), Variant(*mode), Variant(scalePixels)});
        return static_cast<std::int32_t>(std::lround(toDouble(converted, loc)));
    };
    return {pixels(u"Left", u"ScaleX"), pixels(u"Top", u"ScaleY"), pixels(u"Width", u"ScaleX"),
            pixels(u"Height", u"ScaleY")};
}

} // namespace velkor6::controls
