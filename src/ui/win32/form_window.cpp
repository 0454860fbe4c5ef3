#include "ui/win32/form_window.h"

#include "ui/win32/controls.h"
#include "ui/win32/module_instance.h"

namespace velkor6::ui::win32 {
namespace {

// The class is registered on the first dialog and unregistered when the module unloads.
class FormClass {
public:
    FormClass(WNDPROC procedure) : instance_(moduleInstance()) {
        WNDCLASSEXW wc{};
        wc.cbSize = sizeof wc;
        wc.style = CS_DBLCLKS;
        wc.lpfnWndProc = procedure;
        wc.hInstance = instance_;
        wc.hCursor = LoadCursorW(nullptr, systemResource(IDC_ARROW));
        wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        wc.lpszClassName = formClassName;
        registered_ = RegisterClassExW(&wc) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
    }
    FormClass(const FormClass&) = delete;
    FormClass& operator=(const FormClass&) = delete;
    ~FormClass() {
        if (registered_)
            UnregisterClassW(formClassName, instance_);
    }
    bool registered() const { return registered_; }
    HINSTANCE instance() const { return instance_; }

private:
    HINSTANCE instance_;
    bool registered_ = false;
};

} // namespace

SIZE outerSize(int clientWidth, int clientHeight, DWORD style, DWORD exStyle) {
    RECT r{0, 0, clientWidth, clientHeight};
    AdjustWindowRectEx(&r, style, FALSE, exStyle);
    return {r.right - r.left, r.bottom - r.top};
}

bool FormWindow::create(const std::wstring& title, DWORD style, DWORD exStyle, HWND owner,
                        int clientWidth, int clientHeight) {
    static const FormClass formClass(&FormWindow::procedure);
    if (!formClass.registered())
        return false;
    const SIZE size = outerSize(clientWidth, clientHeight, style, exStyle);
    RECT area{};
    if (owner == nullptr || !GetWindowRect(owner, &area) || IsIconic(owner))
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const int x = area.left + (area.right - area.left - size.cx) / 2;
    const int y = area.top + (area.bottom - area.top - size.cy) / 2;
    // The window is this object's from WM_NCCREATE on.
    return CreateWindowExW(exStyle, formClassName, title.c_str(), style, x, y, size.cx, size.cy,
                           owner, nullptr, formClass.instance(), this) != nullptr;
}

LRESULT FormWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window_.get(), message, wParam, lParam);
}

LRESULT CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* form =
            static_cast<FormWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
        form->window_.reset(window);
    }
    auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (form == nullptr)
        return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        // The window is going: the object must not destroy it a second time.
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        const LRESULT result = form->onMessage(message, wParam, lParam);
        (void)form->window_.release();
        return result;
    }
    return form->onMessage(message, wParam, lParam);
}

} // namespace velkor6::ui::win32
