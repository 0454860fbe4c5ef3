// A window another program can look for: class "VelkorTestWindow", caption "velkor6 helper",
// a client area of 300 by 200 pixels. It closes itself after the milliseconds given as the
// first argument (default 3000).
// usage: window_helper [MILLISECONDS]
// clang-format off
#include <windows.h>
// clang-format on

#include <cstdlib>

namespace {

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    if (message == WM_TIMER) {
        DestroyWindow(window);
        return 0;
    }
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, w, l);
}

} // namespace

int main(int argc, char** argv) {
    const UINT lifetime = argc > 1 ? static_cast<UINT>(std::atoi(argv[1])) : 3000;
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"VelkorTestWindow";
    if (RegisterClassW(&windowClass) == 0)
        return 1;
    RECT r{0, 0, 300, 200};
    AdjustWindowRect(&r, WS_OVERLAPPEDWINDOW, FALSE);
    const HWND window = CreateWindowW(L"VelkorTestWindow", L"velkor6 helper", WS_OVERLAPPEDWINDOW,
                                      10, 10, r.right - r.left, r.bottom - r.top, nullptr, nullptr,
                                      windowClass.hInstance, nullptr);
    if (window == nullptr)
        return 1;
    ShowWindow(window, SW_SHOWNORMAL);
    SetTimer(window, 1, lifetime, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
