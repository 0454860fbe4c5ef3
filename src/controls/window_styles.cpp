#include "controls/window_styles.h"

namespace velkor6::controls {

std::uint32_t setDigitsOnly(ControlWindow& window, bool digitsOnly) {
    const std::uint32_t style = window.style();
    return window.setStyle(digitsOnly ? style | editDigitsOnly : style & ~editDigitsOnly);
}

void alignButtonText(ControlWindow& window, std::uint32_t alignment) {
    window.setStyle((window.style() & ~buttonHorizontalAlignment) | alignment);
}

} // namespace velkor6::controls
