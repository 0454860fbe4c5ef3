#include "ui/win32/status_form.h"

// clang-format off
#include <commctrl.h>
// clang-format on

#include "platform/win32/wide.h"

namespace velkor6::ui::win32 {
namespace {

using velkor6::win32::wide;

constexpr DWORD statusStyle = WS_POPUP | WS_CAPTION | WS_CLIPCHILDREN;
constexpr DWORD statusExStyle = WS_EX_DLGMODALFRAME;

RECT rectOf(const PixelRect& r) {
    return {r.left, r.top, r.left + r.width, r.top + r.height};
}

COLORREF colourOf(std::uint32_t rgb) {
    return RGB((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

} // namespace

bool StatusForm::build(const StatusWindow& window) {
    owner_ = reinterpret_cast<HWND>(window.owner);
    if (owner_ != nullptr && IsWindow(owner_) == FALSE)
        owner_ = nullptr;
    if (!create(wide(window.title), statusStyle, statusExStyle, owner_, window.clientSize.width,
                window.clientSize.height))
        return false;
    const HFONT font = fonts_.get(window.message.font);
    if (richEdit_.load()) {
        message_ = makeRichText(handle(), rectOf(window.message.rect), window.message.text, font,
                                colourOf(window.message.font.color));
        centreParagraphs(message_);
    } else
        message_ = makeLabel(handle(), rectOf(window.message.rect), wide(window.message.plainText),
                             font, true);
    shownText_ = window.message.text;
    counter_ = makeProgressBar(handle(), rectOf(window.counterRect));
    return true;
}

bool StatusForm::show(const StatusWindow& window) {
    if (handle() == nullptr && !build(window))
        return false;
    const HWND form = handle();
    if (velkor6::win32::fromWide(windowText(form)) != window.title)
        SetWindowTextW(form, wide(window.title).c_str());

    const SIZE outer =
        outerSize(window.clientSize.width, window.clientSize.height, statusStyle, statusExStyle);
    SetWindowPos(form, nullptr, 0, 0, outer.cx, outer.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);

    moveControl(message_, rectOf(window.message.rect));
    if (window.message.text != shownText_) {
        if (richEdit_.load()) {
            setRichText(message_, window.message.text);
            centreParagraphs(message_);
        } else
            SetWindowTextW(message_, wide(window.message.plainText).c_str());
        shownText_ = window.message.text;
    }

    moveControl(counter_, rectOf(window.counterRect));
    SendMessageW(counter_, PBM_SETRANGE32, 0, window.counterMax);
    SendMessageW(counter_, PBM_SETPOS, static_cast<WPARAM>(window.counterValue), 0);
    ShowWindow(counter_, window.counterVisible ? SW_SHOWNA : SW_HIDE);

    const auto owner = reinterpret_cast<HWND>(window.owner);
    if (owner != owner_ && (owner == nullptr || IsWindow(owner) != FALSE)) {
        // GWLP_HWNDPARENT of a top-level window sets its owner.
        SetWindowLongPtrW(form, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
        owner_ = owner;
    }
    SetWindowPos(form, window.topMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ShowWindow(form, SW_SHOWNA);
    // Painted now: a caller's long loop may not serve events before the next update.
    RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    return true;
}

void StatusForm::hide() {
    if (handle() != nullptr)
        ShowWindow(handle(), SW_HIDE);
}

LRESULT StatusForm::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // Only the library closes the status window.
    if (message == WM_CLOSE)
        return 0;
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace velkor6::ui::win32
