// The top-level windows of the dialogs: one window class of the library's module, whose
// messages go to a C++ object.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "ui/win32/owned.h"

#include <string>

namespace velkor6::ui::win32 {

// The class name of the library's dialog windows (test helpers look for it).
inline constexpr wchar_t formClassName[] = L"velkor6.Form";

class FormWindow {
public:
    FormWindow() = default;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    virtual ~FormWindow() = default;

    HWND handle() const { return window_.get(); }

protected:
    // Makes the window, hidden, with a client area of the given size, centred over `owner`
    // (or the screen).
    bool create(const std::wstring& title, DWORD style, DWORD exStyle, HWND owner, int clientWidth,
                int clientHeight);
    void destroy() { window_.reset(); }

    // Every message of the window; the default is the system's.
    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Window window_;
};

// The outer size of a window with this client size, style and no menu.
SIZE outerSize(int clientWidth, int clientHeight, DWORD style, DWORD exStyle);

} // namespace velkor6::ui::win32
