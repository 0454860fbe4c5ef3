// The caller's windows and the screen through user32.
#include "platform/win32/services.h"

#include <windows.h>

namespace velkor6::win32 {
namespace {

// Window handles cross the interface as 32-bit numbers, as clients hold them; the system
// keeps them within 32 bits so that 32- and 64-bit programs can share them.
HWND windowOf(WindowHandle h) {
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(h));
}
WindowHandle handleOf(HWND w) {
    return static_cast<WindowHandle>(reinterpret_cast<LONG_PTR>(w));
}

WindowRect rectOf(const RECT& r) {
    return {r.left, r.top, r.right, r.bottom};
}

class Win32WindowManager final : public WindowManager {
public:
    std::uint32_t style(WindowHandle window) override {
        const HWND w = windowOf(window);
        return IsWindow(w) ? static_cast<std::uint32_t>(GetWindowLongPtrW(w, GWL_STYLE)) : 0;
    }

    WindowHandle parent(WindowHandle window) override {
        return handleOf(GetParent(windowOf(window)));
    }

    std::optional<WindowRect> windowRect(WindowHandle window) override {
        RECT r{};
        if (!GetWindowRect(windowOf(window), &r))
            return std::nullopt;
        return rectOf(r);
    }

    bool setPosition(WindowHandle window, WindowHandle insertAfter, std::int32_t x, std::int32_t y,
                     std::int32_t width, std::int32_t height, std::uint32_t flags) override {
        return SetWindowPos(windowOf(window), windowOf(insertAfter), x, y, width, height, flags);
    }

    bool show(WindowHandle window, std::int32_t command) override {
        const HWND w = windowOf(window);
        if (!IsWindow(w))
            return false;
        ShowWindow(w, command);
        return true;
    }

    std::int32_t sendMessage(WindowHandle window, std::uint32_t message, std::int32_t wParam,
                             std::int32_t lParam) override {
        const HWND w = windowOf(window);
        if (!IsWindow(w))
            return 0;
        return static_cast<std::int32_t>(
            SendMessageW(w, message, static_cast<WPARAM>(wParam), static_cast<LPARAM>(lParam)));
    }

    std::optional<WindowRect> workArea(std::int32_t x, std::int32_t y) override {
        MONITORINFO info{};
        info.cbSize = sizeof info;
        const HMONITOR monitor = MonitorFromPoint(POINT{x, y}, MONITOR_DEFAULTTONEAREST);
        if (monitor == nullptr || !GetMonitorInfoW(monitor, &info))
            return std::nullopt;
        return rectOf(info.rcWork);
    }

    std::int32_t screenWidth() override { return GetSystemMetrics(SM_CXSCREEN); }
    std::int32_t screenHeight() override { return GetSystemMetrics(SM_CYSCREEN); }

    TwipsPerPixel twipsPerPixel() override {
        const HDC screen = GetDC(nullptr);
        if (screen == nullptr)
            return {};
        const int dpiX = GetDeviceCaps(screen, LOGPIXELSX);
        const int dpiY = GetDeviceCaps(screen, LOGPIXELSY);
        ReleaseDC(nullptr, screen);
        TwipsPerPixel t;
        if (dpiX > 0)
            t.x = 1440 / dpiX;
        if (dpiY > 0)
            t.y = 1440 / dpiY;
        return t;
    }
};

} // namespace

std::unique_ptr<WindowManager> createWindowManager() {
    return std::make_unique<Win32WindowManager>();
}

} // namespace velkor6::win32
