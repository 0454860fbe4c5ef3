#include "windows/screen.h"

#include <algorithm>
#include <cmath>

namespace velkor6::windows {

void roundWindow(WindowManager& windows, WindowHandle window, std::int32_t cornerWidth,
                 std::int32_t cornerHeight, std::int32_t xOffset, std::int32_t yOffset) {
    const WindowRect outer = windows.windowRect(window).value_or(WindowRect{});
    const WindowRect area{xOffset, yOffset, outer.width() - xOffset, outer.height() - yOffset};
    windows.setRoundedShape(window, area, cornerWidth, cornerHeight);
}

void clipCursor(WindowManager& windows, WindowHandle window, WindowHandle second) {
    if (window == 0) {
        windows.confinePointer(std::nullopt);
        return;
    }
    WindowRect area = windows.clientRect(window).value_or(WindowRect{});
    if (second != 0) {
        const WindowRect other = windows.clientRect(second).value_or(WindowRect{});
        area = {std::max(area.left, other.left), std::max(area.top, other.top),
                std::min(area.right, other.right), std::min(area.bottom, other.bottom)};
    }
    windows.confinePointer(area);
}

std::int32_t frameSize(WindowManager& windows, WindowHandle window) {
    if (window == 0)
        return windows.frameMetrics(0).sizingFrame;
    const std::uint32_t style = windows.style(window);
    if ((style & winstyle::caption) == winstyle::caption)
        return windows.frameMetrics(window).dialogFrame;
    if ((style & winstyle::border) != 0)
        return windows.frameMetrics(window).sizingFrame;
    return 0;
}

std::int32_t menuHeight(WindowManager& windows) {
    const FrameMetrics frame = windows.frameMetrics(0);
    return frame.titleButton + frame.sizingFrame;
}

std::optional<TwipsSize> internalSize(WindowManager& windows, WindowHandle window) {
    if (window == 0)
        return std::nullopt;
    const auto client = windows.clientRect(window);
    if (!client)
        return std::nullopt;
    const TwipsPerPixel tpp = windows.twipsPerPixel();
    return TwipsSize{client->width() * tpp.x, client->height() * tpp.y};
}

bool isKeyDown(InputState& input, std::int32_t virtualKey) {
    input.asyncKeyState(virtualKey);
    return input.asyncKeyState(virtualKey) != 0;
}

bool isMouseButtonDown(InputState& input, std::int32_t button) {
    if (input.mouseButtonsSwapped()) {
        if (button == 1)
            button = 2;
        else if (button == 2)
            button = 1;
    }
    // The middle button reads key code 3 (not the middle button's 4): callers rely on it.
    const std::int32_t key = button == 4 ? 3 : button;
    return input.asyncKeyState(key) != 0;
}

} // namespace velkor6::windows
