// Opacity and pixels through the Windows window manager: a window of this process made
// layered and read back with GetLayeredWindowAttributes; bitmaps and memory device contexts.
#include "velkor6/platform/platform.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace velkor6 {
namespace {

WindowHandle handleOf(HWND w) {
    return static_cast<WindowHandle>(reinterpret_cast<LONG_PTR>(w));
}

TEST(Win32Pixels, OpacityIsALayeredWindowsAlpha) {
    const auto platform = Platform::createNative();
    WindowManager& windows = *platform->windowManager;
    const HWND w = CreateWindowExW(0, L"STATIC", L"fade", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr,
                                   nullptr, nullptr);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(windows.opacity(handleOf(w)), 1.0); // never layered
    ASSERT_TRUE(windows.setOpacity(handleOf(w), 0.5));
    EXPECT_NE(GetWindowLongW(w, GWL_EXSTYLE) & WS_EX_LAYERED, 0);
    BYTE alpha = 0;
    DWORD flags = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(w, nullptr, &alpha, &flags));
    EXPECT_EQ(alpha, 128);
    EXPECT_NE(flags & LWA_ALPHA, 0u);
    EXPECT_NEAR(*windows.opacity(handleOf(w)), 128 / 255.0, 1e-9);
    ASSERT_TRUE(windows.setOpacity(handleOf(w), 0));
    EXPECT_EQ(windows.opacity(handleOf(w)), 0.0);
    DestroyWindow(w);
    EXPECT_FALSE(windows.setOpacity(handleOf(w), 1));
    EXPECT_FALSE(windows.opacity(handleOf(w)));
}

TEST(Win32Pixels, BitmapsAndDeviceContexts) {
    const auto platform = Platform::createNative();
    WindowManager& windows = *platform->windowManager;
    // A 3 by 2 bitmap, 32 bits a pixel, top row first in memory order of CreateBitmap.
    const DWORD bits[6] = {0x00FF0000, 0x0000FF00, 0x000000FF, 0x00102030, 0, 0x00FFFFFF};
    const HBITMAP bitmap = CreateBitmap(3, 2, 1, 32, bits);
    ASSERT_NE(bitmap, nullptr);
    const auto image = windows.bitmapPixels(reinterpret_cast<INT_PTR>(bitmap));
    ASSERT_TRUE(image);
    ASSERT_EQ(image->width, 3);
    ASSERT_EQ(image->height, 2);
    EXPECT_EQ(image->at(0, 0), (Rgb{255, 0, 0}));
    EXPECT_EQ(image->at(2, 0), (Rgb{0, 0, 255}));
    EXPECT_EQ(image->at(0, 1), (Rgb{0x10, 0x20, 0x30}));
    EXPECT_FALSE(windows.bitmapPixels(0));

    // Drawn on a memory device context and read back from it.
    const HDC dc = CreateCompatibleDC(nullptr);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, 8, -8, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* surface = nullptr;
    const HBITMAP target = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &surface, nullptr, 0);
    const HGDIOBJ old = SelectObject(dc, target);
    const auto handle = reinterpret_cast<INT_PTR>(dc);
    EXPECT_TRUE(windows.drawPixels(handle, 2, 3, *image));
    const auto under = windows.deviceContextPixels(handle, {2, 3, 5, 5});
    ASSERT_TRUE(under);
    EXPECT_EQ(under->pixels, image->pixels);
    EXPECT_FALSE(windows.drawPixels(0, 0, 0, *image));
    SelectObject(dc, old);
    DeleteObject(target);
    DeleteDC(dc);
    DeleteObject(bitmap);
}

} // namespace
} // namespace velkor6
