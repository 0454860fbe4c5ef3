// Window shape, frame and screen metrics, and the state of keys and mouse buttons.
#pragma once

#include "velkor6/platform/input_state.h"
#include "velkor6/platform/window_manager.h"

#include <cstdint>
#include <optional>

namespace velkor6::windows {

// The window cut to a rectangle with rounded corners (ellipse cornerWidth x cornerHeight),
// inset by the offsets on all four sides.
void roundWindow(WindowManager& windows, WindowHandle window, std::int32_t cornerWidth,
                 std::int32_t cornerHeight, std::int32_t xOffset, std::int32_t yOffset);
// Confines the pointer to the window's client area, narrowed to the overlap with the second
// window's when that is given; window 0 releases it.
void clipCursor(WindowManager& windows, WindowHandle window, WindowHandle second);
// Dialog frame for a window with a caption, sizing frame for a border alone (and for handle 0),
// 0 without a border.
std::int32_t frameSize(WindowManager& windows, WindowHandle window);
// A title-bar button plus a sizing frame (on purpose not the menu bar's metric).
std::int32_t menuHeight(WindowManager& windows);
struct TwipsSize {
    std::int32_t cx = 0;
    std::int32_t cy = 0;
};
// The client area in twips; nullopt for handle 0 or no window.
std::optional<TwipsSize> internalSize(WindowManager& windows, WindowHandle window);
// Down now: the first query clears the pressed-since-last-query note, the second one answers.
bool isKeyDown(InputState& input, std::int32_t virtualKey);
// Buttons 1 (left), 2 (right) and 4 (middle), after the user's swap of left and right; the
// middle button reads key code 3, and a press since the last query also counts.
bool isMouseButtonDown(InputState& input, std::int32_t button);

} // namespace velkor6::windows
