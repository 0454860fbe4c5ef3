#include "ui/win32/modal_form.h"

#include "platform/win32/wide.h"
#include "ui/win32/modal_loop.h"

#include <algorithm>

namespace velkor6::ui::win32 {
namespace {

using velkor6::win32::fromWide;
using velkor6::win32::wide;

constexpr int firstButtonId = 100;
constexpr int fieldId = 50;

RECT rectOf(const PixelRect& r) {
    return {r.left, r.top, r.left + r.width, r.top + r.height};
}

COLORREF colourOf(std::uint32_t rgb) {
    return RGB((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

bool modifierDown() {
    return GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0;
}

} // namespace

ModalForm::ModalForm(const DialogForm& form, const DialogDecision& decide,
                     RichEditLibrary& richEdit)
    : form_(form), decide_(decide), richEdit_(richEdit) {}

DialogEvent ModalForm::run(HWND owner) {
    if (!build()) {
        DialogEvent none;
        none.kind = DialogEvent::Kind::closeBox;
        return none;
    }
    // The first keys go where a user would type: into the field, or else to the default button.
    const bool defaultShown =
        form_.defaultButton >= 0 && static_cast<std::size_t>(form_.defaultButton) < buttons_.size();
    const HWND firstFocus = field_ != nullptr && IsWindowEnabled(field_) != FALSE ? field_
                            : defaultShown ? buttons_[static_cast<std::size_t>(form_.defaultButton)]
                                           : nullptr;
    bool focused = false;
    runModal(
        handle(), owner,
        [&] {
            if (!focused && firstFocus != nullptr && IsWindowVisible(handle()) != FALSE) {
                SetFocus(firstFocus);
                focused = true;
            }
            return decided_.has_value();
        },
        [this](const MSG& message) { return preview(message); });
    if (decided_)
        return *decided_;
    DialogEvent gone; // the window went without the logic's consent (its thread quit)
    gone.kind = DialogEvent::Kind::closeBox;
    return gone;
}

bool ModalForm::build() {
    DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    if (form_.resizable)
        style |= WS_THICKFRAME | WS_MAXIMIZEBOX;
    const DWORD exStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;
    if (!create(wide(form_.title), style, exStyle, defaultOwner(), form_.clientSize.width,
                form_.clientSize.height))
        return false;
    const HWND form = handle();
    if (form_.icon != DialogIcon::none)
        makeIcon(form, rectOf(form_.iconRect), systemIcon(static_cast<std::int32_t>(form_.icon)));
    for (const DialogText& text : form_.texts) {
        const HFONT font = fonts_.get(text.font);
        HWND control = nullptr;
        if (text.rich && richEdit_.load())
            control =
                makeRichText(form, rectOf(text.rect), text.text, font, colourOf(text.font.color));
        if (control == nullptr) {
            control = makeLabel(form, rectOf(text.rect),
                                wide(text.rich ? text.plainText : text.text), font, text.wordWrap);
            colours_.emplace_back(control, colourOf(text.font.color));
        }
    }
    const HFONT controlFont = fonts_.get(DialogFont{});
    if (form_.field) {
        const DialogField& f = *form_.field;
        field_ = makeEdit(form, rectOf(f.rect), wide(f.text), controlFont, fieldId, f.multiLine,
                          static_cast<wchar_t>(f.passwordChar), f.maxLength);
        if (field_ != nullptr) {
            EnableWindow(field_, f.enabled ? TRUE : FALSE);
            if (f.locked)
                SendMessageW(field_, EM_SETREADONLY, TRUE, 0);
            if (!f.toolTip.empty())
                addToolTip(form, field_, wide(f.toolTip));
        }
    }
    for (std::size_t i = 0; i < form_.buttons.size(); ++i) {
        const DialogButton& b = form_.buttons[i];
        buttons_.push_back(makeButton(form, rectOf(b.rect), wide(b.caption), controlFont,
                                      firstButtonId + static_cast<int>(i),
                                      static_cast<std::int32_t>(i) == form_.defaultButton));
    }
    return true;
}

std::int32_t ModalForm::buttonIndex(HWND control) const {
    const auto at = std::find(buttons_.begin(), buttons_.end(), control);
    return at == buttons_.end() || control == nullptr
               ? -1
               : static_cast<std::int32_t>(at - buttons_.begin());
}

void ModalForm::report(DialogEvent::Kind kind, std::int32_t button, char16_t letter) {
    if (decided_)
        return;
    DialogEvent event;
    event.kind = kind;
    event.button = button;
    event.letter = letter;
    if (field_ != nullptr)
        event.text = fromWide(windowText(field_));
    RECT client{};
    GetClientRect(handle(), &client);
    event.clientSize = {client.right, client.bottom};
    if (decide_(event))
        decided_ = std::move(event);
}

bool ModalForm::preview(const MSG& message) {
    const HWND form = handle();
    if (message.hwnd != form && IsChild(form, message.hwnd) == FALSE)
        return false;
    if (message.message != WM_KEYDOWN || modifierDown())
        return false;
    const HWND focus = GetFocus();
    switch (message.wParam) {
    case VK_ESCAPE:
        report(DialogEvent::Kind::escape);
        return true;
    case VK_RETURN:
        if (focus != nullptr && focus == field_ && form_.field && form_.field->multiLine)
            return false;
        report(DialogEvent::Kind::enter);
        return true;
    case VK_SPACE:
        if (!form_.previewKeys)
            return false; // the focused button presses itself
        report(DialogEvent::Kind::space, buttonIndex(focus));
        return true;
    default:
        if (form_.previewKeys && message.wParam >= 'A' && message.wParam <= 'Z') {
            report(DialogEvent::Kind::letter, -1, static_cast<char16_t>(message.wParam));
            return true;
        }
        return false;
    }
}

void ModalForm::placeForSize(int width, int height) {
    // The field grows with the form; the buttons keep their distance to the bottom-right corner.
    const int dx = width - form_.clientSize.width;
    const int dy = height - form_.clientSize.height;
    if (field_ != nullptr) {
        RECT r = rectOf(form_.field->rect);
        r.right += dx;
        r.bottom += dy;
        moveControl(field_, r);
    }
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        RECT r = rectOf(form_.buttons[i].rect);
        OffsetRect(&r, dx, dy);
        moveControl(buttons_[i], r);
    }
}

LRESULT ModalForm::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED) {
            const std::int32_t index = buttonIndex(reinterpret_cast<HWND>(lParam));
            if (index >= 0)
                report(DialogEvent::Kind::button, index);
            return 0;
        }
        if (HIWORD(wParam) == EN_SETFOCUS && LOWORD(wParam) == fieldId && form_.field &&
            form_.field->selectAllOnFocus)
            PostMessageW(field_, EM_SETSEL, 0, -1);
        return 0;
    case WM_CLOSE:
        report(DialogEvent::Kind::closeBox);
        return 0;
    case WM_CTLCOLORSTATIC: {
        const auto hdc = reinterpret_cast<HDC>(wParam);
        for (const auto& [control, colour] : colours_)
            if (control == reinterpret_cast<HWND>(lParam))
                SetTextColor(hdc, colour);
        SetBkColor(hdc, GetSysColor(COLOR_BTNFACE));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
    }
    case WM_SIZE:
        if (form_.resizable && wParam != SIZE_MINIMIZED)
            placeForSize(LOWORD(lParam), HIWORD(lParam));
        return 0;
    case WM_GETMINMAXINFO:
        if (form_.resizable) {
            const SIZE least = outerSize(form_.minimumSize.width, form_.minimumSize.height,
                                         static_cast<DWORD>(GetWindowLongW(handle(), GWL_STYLE)),
                                         static_cast<DWORD>(GetWindowLongW(handle(), GWL_EXSTYLE)));
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.cx, least.cy};
        }
        return 0;
    default:
        return FormWindow::onMessage(message, wParam, lParam);
    }
}

} // namespace velkor6::ui::win32
