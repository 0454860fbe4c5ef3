// The caller's windows and the screen through user32.
#include "platform/win32/control_window.h"
#include "platform/win32/services.h"

#include <string>
#include <vector>
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

HDC deviceContextOf(std::int64_t dc) {
    const auto h = reinterpret_cast<HDC>(static_cast<INT_PTR>(dc));
    return dc != 0 && GetObjectType(h) != 0 ? h : nullptr;
}

// A 32-bit top-down device-independent bitmap's description.
BITMAPINFO topDown32(std::int32_t width, std::int32_t height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

std::vector<std::uint32_t> packed(const RgbImage& image) {
    std::vector<std::uint32_t> bits;
    bits.reserve(image.pixels.size());
    for (const Rgb& p : image.pixels)
        bits.push_back((std::uint32_t{p.red} << 16) | (std::uint32_t{p.green} << 8) | p.blue);
    return bits;
}

// The bitmap (not selected into any device context) as RGB pixels, through GetDIBits.
std::optional<RgbImage> readBits(HDC dc, HBITMAP bitmap, std::int32_t width, std::int32_t height) {
    BITMAPINFO info = topDown32(width, height);
    std::vector<std::uint32_t> bits(static_cast<std::size_t>(width) *
                                    static_cast<std::size_t>(height));
    if (GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), bits.data(), &info, DIB_RGB_COLORS) ==
        0)
        return std::nullopt;
    RgbImage image(width, height);
    for (std::size_t i = 0; i < bits.size(); ++i)
        image.pixels[i] = {static_cast<std::uint8_t>(bits[i] >> 16),
                           static_cast<std::uint8_t>(bits[i] >> 8),
                           static_cast<std::uint8_t>(bits[i])};
    return image;
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

    std::shared_ptr<ControlWindow> controlWindow(WindowHandle window) override {
        return openControlWindow(windowOf(window));
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

    WindowHandle topWindow() override { return handleOf(GetTopWindow(GetDesktopWindow())); }
    WindowHandle nextWindow(WindowHandle window) override {
        return handleOf(GetWindow(windowOf(window), GW_HWNDNEXT));
    }
    WindowHandle firstChild(WindowHandle window) override {
        return handleOf(GetWindow(windowOf(window), GW_CHILD));
    }

    // The wide functions: the ANSI ones' texts for every character the code page holds, and
    // the other characters as well.
    std::u16string className(WindowHandle window) override {
        wchar_t buffer[256];
        const int n = GetClassNameW(windowOf(window), buffer, 256);
        return std::u16string(reinterpret_cast<const char16_t*>(buffer), n > 0 ? n : 0);
    }
    std::u16string caption(WindowHandle window) override {
        wchar_t buffer[256];
        const int n = GetWindowTextW(windowOf(window), buffer, 256);
        return std::u16string(reinterpret_cast<const char16_t*>(buffer), n > 0 ? n : 0);
    }
    WindowHandle foregroundWindow() override { return handleOf(GetForegroundWindow()); }

    bool setTopMost(WindowHandle window) override {
        return SetWindowPos(windowOf(window), HWND_TOPMOST, 0, 0, 0, 0,
                            SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    }

    bool setOwner(WindowHandle window, WindowHandle owner) override {
        const HWND w = windowOf(window);
        SetWindowLongW(
            w, GWL_STYLE,
            static_cast<LONG>(static_cast<DWORD>(GetWindowLongW(w, GWL_STYLE)) | WS_POPUP));
        SetWindowLongPtrW(w, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(windowOf(owner)));
        return true;
    }

    bool setRoundedShape(WindowHandle window, const WindowRect& area, std::int32_t ellipseWidth,
                         std::int32_t ellipseHeight) override {
        const HRGN region = CreateRoundRectRgn(area.left, area.top, area.right, area.bottom,
                                               ellipseWidth, ellipseHeight);
        if (region == nullptr)
            return false;
        // The window owns the region once it is set; otherwise it is still ours to free.
        if (SetWindowRgn(windowOf(window), region, TRUE) == 0) {
            DeleteObject(region);
            return false;
        }
        return true;
    }

    bool addClassDropShadow(WindowHandle window) override {
        const HWND w = windowOf(window);
        const DWORD style = GetClassLongW(w, GCL_STYLE);
        return SetClassLongW(w, GCL_STYLE, static_cast<LONG>(style | CS_DROPSHADOW)) != 0;
    }

    std::optional<WindowRect> clientRect(WindowHandle window) override {
        const HWND w = windowOf(window);
        RECT r{};
        POINT origin{0, 0};
        if (!GetClientRect(w, &r) || !ClientToScreen(w, &origin))
            return std::nullopt;
        OffsetRect(&r, origin.x, origin.y);
        return rectOf(r);
    }

    bool confinePointer(std::optional<WindowRect> area) override {
        if (!area)
            return ClipCursor(nullptr);
        const RECT r{area->left, area->top, area->right, area->bottom};
        return ClipCursor(&r);
    }

    FrameMetrics frameMetrics(WindowHandle) override {
        return {GetSystemMetrics(SM_CYFRAME), GetSystemMetrics(SM_CYDLGFRAME),
                GetSystemMetrics(SM_CYSIZE)};
    }

    // A layered window with a constant alpha; the window stays layered at full opacity too, so
    // that a colour key the program set itself is kept.
    bool setOpacity(WindowHandle window, double opacity) override {
        const HWND w = windowOf(window);
        if (!IsWindow(w))
            return false;
        const LONG_PTR ex = GetWindowLongPtrW(w, GWL_EXSTYLE);
        if ((ex & WS_EX_LAYERED) == 0)
            SetWindowLongPtrW(w, GWL_EXSTYLE, ex | WS_EX_LAYERED);
        COLORREF key = 0;
        BYTE alpha = 255;
        DWORD flags = 0;
        GetLayeredWindowAttributes(w, &key, &alpha, &flags);
        const double clamped = opacity < 0 ? 0 : (opacity > 1 ? 1 : opacity);
        alpha = static_cast<BYTE>(clamped * 255 + 0.5);
        return SetLayeredWindowAttributes(w, key, alpha, (flags & LWA_COLORKEY) | LWA_ALPHA);
    }

    std::optional<RgbImage> bitmapPixels(std::int64_t handle) override {
        const auto bitmap = reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(handle));
        BITMAP info{};
        if (handle == 0 || GetObjectW(bitmap, sizeof info, &info) != sizeof info ||
            info.bmWidth <= 0 || info.bmHeight <= 0)
            return std::nullopt;
        const HDC screen = GetDC(nullptr);
        std::optional<RgbImage> image = readBits(screen, bitmap, info.bmWidth, info.bmHeight);
        ReleaseDC(nullptr, screen);
        return image;
    }

    std::optional<RgbImage> deviceContextPixels(std::int64_t dc, const WindowRect& area) override {
        const HDC source = deviceContextOf(dc);
        if (source == nullptr || area.width() <= 0 || area.height() <= 0)
            return std::nullopt;
        const HDC memory = CreateCompatibleDC(source);
        const HBITMAP bitmap = CreateCompatibleBitmap(source, area.width(), area.height());
        std::optional<RgbImage> image;
        if (memory != nullptr && bitmap != nullptr) {
            const HGDIOBJ old = SelectObject(memory, bitmap);
            const bool copied = BitBlt(memory, 0, 0, area.width(), area.height(), source, area.left,
                                       area.top, SRCCOPY);
            SelectObject(memory, old);
            if (copied)
                image = readBits(memory, bitmap, area.width(), area.height());
        }
        if (bitmap != nullptr)
            DeleteObject(bitmap);
        if (memory != nullptr)
            DeleteDC(memory);
        return image;
    }

    bool drawPixels(std::int64_t dc, std::int32_t x, std::int32_t y,
                    const RgbImage& image) override {
        const HDC target = deviceContextOf(dc);
        if (target == nullptr || image.width <= 0 || image.height <= 0)
            return false;
        std::vector<std::uint32_t> bits = packed(image);
        const BITMAPINFO info = topDown32(image.width, image.height);
        return SetDIBitsToDevice(target, x, y, static_cast<DWORD>(image.width),
                                 static_cast<DWORD>(image.height), 0, 0, 0,
                                 static_cast<UINT>(image.height), bits.data(), &info,
                                 DIB_RGB_COLORS) != 0;
    }

    std::optional<double> opacity(WindowHandle window) override {
        const HWND w = windowOf(window);
        if (!IsWindow(w))
            return std::nullopt;
        if ((GetWindowLongPtrW(w, GWL_EXSTYLE) & WS_EX_LAYERED) == 0)
            return 1.0;
        COLORREF key = 0;
        BYTE alpha = 255;
        DWORD flags = 0;
        if (!GetLayeredWindowAttributes(w, &key, &alpha, &flags) || (flags & LWA_ALPHA) == 0)
            return 1.0;
        return alpha / 255.0;
    }
};

} // namespace

std::unique_ptr<WindowManager> createWindowManager() {
    return std::make_unique<Win32WindowManager>();
}

} // namespace velkor6::win32
