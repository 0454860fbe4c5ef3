#include "windows/z_order.h"

namespace velkor6::windows {

void centre(WindowManager& windows, WindowHandle window) {
    const WindowRect r = windows.windowRect(window).value_or(WindowRect{});
    const FrameMetrics frame = windows.frameMetrics(window);
    // Whole pixels rounded down, also for a window larger than the screen.
    const auto half = [](std::int32_t n) { return n >= 0 ? n / 2 : -((1 - n) / 2); };
    const std::int32_t x = half(windows.screenWidth() - r.width());
    const std::int32_t y =
        half(windows.screenHeight() - (frame.titleButton + frame.sizingFrame) - r.height());
    windows.setPosition(window, 0, x, y, 0, 0, swp::noSize | swp::noZOrder);
}

void topMost(WindowManager& windows, WindowHandle window) {
    if (window == 0)
        return;
    windows.setTopMost(window);
}

void openTopMost(WindowManager& windows, WindowHandle window, bool centreIt) {
    if (window == 0)
        return;
    if (centreIt)
        centre(windows, window);
    windows.show(window, showcmd::normal);
    topMost(windows, window);
}

void openApplicationTopMost(WindowManager& windows, WindowHandle window, WindowHandle appWindow,
                            bool centreIt) {
    if (window == 0 || appWindow == 0)
        return;
    if (centreIt)
        centre(windows, window);
    windows.show(window, showcmd::normal);
    windows.setOwner(window, appWindow);
}

void applicationTopMost(WindowManager& windows, WindowHandle client, WindowHandle owner) {
    if (owner == 0)
        owner = windows.foregroundWindow();
    if (client != 0 && owner != 0 && client != owner)
        windows.setOwner(client, owner);
    else
        topMost(windows, client);
}

} // namespace velkor6::windows
