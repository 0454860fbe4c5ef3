#include "ui/win32/modal_loop.h"

namespace velkor6::ui::win32 {
namespace {

// Disables the owner for the lifetime of the object and puts back what was there before.
class OwnerDisabled {
public:
    explicit OwnerDisabled(HWND owner) : owner_(owner), focus_(GetFocus()) {
        if (owner_ != nullptr && IsWindowEnabled(owner_))
            EnableWindow(owner_, FALSE);
        else
            owner_ = nullptr;
    }
    OwnerDisabled(const OwnerDisabled&) = delete;
    OwnerDisabled& operator=(const OwnerDisabled&) = delete;
    ~OwnerDisabled() {
        // Runs before the caller destroys the form, so that the system activates the owner
        // and not some other program's window.
        if (owner_ != nullptr && IsWindow(owner_))
            EnableWindow(owner_, TRUE);
        if (focus_ != nullptr && IsWindow(focus_))
            SetFocus(focus_);
    }

private:
    HWND owner_;
    HWND focus_;
};

} // namespace

HWND defaultOwner() {
    return GetActiveWindow();
}

void runModal(HWND form, HWND owner, const std::function<bool()>& finished,
              const std::function<bool(const MSG&)>& preview) {
    const OwnerDisabled disabled(owner);
    ShowWindow(form, SW_SHOW);
    SetForegroundWindow(form);
    MSG message{};
    while (!finished() && IsWindow(form)) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got == 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (got == -1)
            break;
        if (preview(message))
            continue;
        if (IsDialogMessageW(form, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace velkor6::ui::win32
