// Keyboard and mouse state.
#pragma once

#include "velkor6/export.h"

#include <cstdint>

namespace velkor6 {

class VELKOR6_API InputState {
public:
    virtual ~InputState() = default;
    // The state word of a virtual key (mouse buttons are keys 1, 2 and 4): the top bit is set
    // while the key is down, bit 0 when it was pressed since the previous query.
    virtual std::int16_t asyncKeyState(std::int32_t virtualKey) = 0;
    // Whether the user has exchanged the left and right mouse buttons.
    virtual bool mouseButtonsSwapped() = 0;
};

namespace vkey {
inline constexpr std::int32_t leftButton = 1;
inline constexpr std::int32_t rightButton = 2;
inline constexpr std::int32_t escape = 27;
} // namespace vkey

} // namespace velkor6
