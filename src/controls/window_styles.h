// Window-style switches of single controls: the digits-only bit of a text box and the text
// alignment of a button.
#pragma once

#include "velkor6/enums.h"
#include "velkor6/platform/control_window.h"

#include <cstdint>

namespace velkor6::controls {

// ES_NUMBER: the edit control takes digits only.
inline constexpr std::uint32_t editDigitsOnly = 0x2000;
// The horizontal alignment bits of a button (left, right, centre).
inline constexpr std::uint32_t buttonHorizontalAlignment = BS_CENTER;

// Sets or clears the digits-only bit; answers the previous style.
std::uint32_t setDigitsOnly(ControlWindow& window, bool digitsOnly);

// Clears the horizontal alignment bits and adds alignment. Other bits given in alignment
// (BS_TOP) are added to what stands and stay.
void alignButtonText(ControlWindow& window, std::uint32_t alignment);

} // namespace velkor6::controls
