#include "ui/win32/controls.h"

// clang-format off
#include <commctrl.h>
#include <richedit.h>
// clang-format on

#include "ui/win32/module_instance.h"

namespace velkor6::ui::win32 {
namespace {

HWND makeChild(const wchar_t* className, HWND parent, const RECT& place, std::wstring_view text,
               DWORD style, DWORD exStyle, int id, HFONT font) {
    const std::wstring caption(text);
    const HWND control = CreateWindowExW(
        exStyle, className, caption.c_str(), WS_CHILD | WS_VISIBLE | style, place.left, place.top,
        place.right - place.left, place.bottom - place.top, parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), moduleInstance(), nullptr);
    if (control != nullptr && font != nullptr)
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}

} // namespace

// The system's icons and cursors are numbers in a pointer; the wide functions take the same
// numbers.
LPCWSTR systemResource(LPCSTR id) {
    return reinterpret_cast<LPCWSTR>(id);
}

HICON systemIcon(std::int32_t symbol) {
    switch (symbol) {
    case 16:
        return LoadIconW(nullptr, systemResource(IDI_HAND));
    case 32:
        return LoadIconW(nullptr, systemResource(IDI_QUESTION));
    case 48:
        return LoadIconW(nullptr, systemResource(IDI_EXCLAMATION));
    case 64:
        return LoadIconW(nullptr, systemResource(IDI_ASTERISK));
    default:
        return nullptr;
    }
}

HWND makeLabel(HWND parent, const RECT& place, std::wstring_view text, HFONT font, bool wrap) {
    // A label shows "&" as it is: its text is a message, not a caption with a hot key.
    const DWORD style = SS_LEFT | SS_NOPREFIX | (wrap ? 0 : SS_LEFTNOWORDWRAP);
    return makeChild(L"STATIC", parent, place, text, style, 0, -1, font);
}

HWND makeIcon(HWND parent, const RECT& place, HICON icon) {
    const HWND control = makeChild(L"STATIC", parent, place, L"", SS_ICON, 0, -1, nullptr);
    if (control != nullptr)
        SendMessageW(control, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
    // SS_ICON sizes the control to the icon; the computed place is the one that counts.
    moveControl(control, place);
    return control;
}

HWND makeButton(HWND parent, const RECT& place, std::wstring_view caption, HFONT font, int id,
                bool isDefault) {
    const DWORD style = WS_TABSTOP | (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
    return makeChild(L"BUTTON", parent, place, caption, style, 0, id, font);
}

HWND makeEdit(HWND parent, const RECT& place, std::wstring_view text, HFONT font, int id,
              bool multiLine, wchar_t passwordChar, int maxLength) {
    DWORD style = WS_TABSTOP | WS_BORDER | ES_LEFT;
    style |=
        multiLine ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL : ES_AUTOHSCROLL;
    if (passwordChar != 0)
        style |= ES_PASSWORD;
    const HWND control = makeChild(L"EDIT", parent, place, text, style, 0, id, font);
    if (control == nullptr)
        return nullptr;
    if (passwordChar != 0)
        SendMessageW(control, EM_SETPASSWORDCHAR, passwordChar, 0);
    if (maxLength > 0)
        SendMessageW(control, EM_LIMITTEXT, static_cast<WPARAM>(maxLength), 0);
    return control;
}

HWND makeProgressBar(HWND parent, const RECT& place) {
    return makeChild(PROGRESS_CLASSW, parent, place, L"", 0, 0, -1, nullptr);
}

void addToolTip(HWND parent, HWND control, const std::wstring& text) {
    const HWND tip = CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent, nullptr, moduleInstance(), nullptr);
    if (tip == nullptr)
        return;
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = parent;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void moveControl(HWND control, const RECT& place) {
    if (control != nullptr)
        MoveWindow(control, place.left, place.top, place.right - place.left,
                   place.bottom - place.top, TRUE);
}

std::wstring windowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool RichEditLibrary::load() {
    if (!library_)
        library_.reset(LoadLibraryW(L"Msftedit.dll"));
    return static_cast<bool>(library_);
}

HWND makeRichText(HWND parent, const RECT& place, std::u16string_view rtf, HFONT font,
                  COLORREF colour) {
    const DWORD style = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL;
    const HWND control = makeChild(MSFTEDIT_CLASS, parent, place, L"", style, 0, -1, font);
    if (control == nullptr)
        return nullptr;
    SendMessageW(control, EM_SETBKGNDCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_BTNFACE)));
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    format.dwMask = CFM_COLOR;
    format.crTextColor = colour;
    SendMessageW(control, EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
    setRichText(control, rtf);
    return control;
}

void setRichText(HWND control, std::u16string_view rtf) {
    const std::string document = asciiRtf(rtf);
    SETTEXTEX how{ST_DEFAULT, CP_ACP};
    SendMessageW(control, EM_SETTEXTEX, reinterpret_cast<WPARAM>(&how),
                 reinterpret_cast<LPARAM>(document.c_str()));
}

void centreParagraphs(HWND control) {
    CHARRANGE kept{};
    SendMessageW(control, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&kept));
    CHARRANGE all{0, -1};
    SendMessageW(control, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&all));
    PARAFORMAT2 format{};
    format.cbSize = sizeof format;
    format.dwMask = PFM_ALIGNMENT;
    format.wAlignment = PFA_CENTER;
    SendMessageW(control, EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
    SendMessageW(control, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&kept));
}

std::string asciiRtf(std::u16string_view rtf) {
    const bool whole = rtf.starts_with(u"{\\rtf");
    std::string out = whole ? "" : "{\\rtf1\\ansi ";
    for (const char16_t c : rtf) {
        if (c < 128) {
            out += static_cast<char>(c);
        } else {
            out += "\\u" + std::to_string(static_cast<std::int16_t>(c)) + "?";
        }
    }
    if (!whole)
        out += "}";
    return out;
}

} // namespace velkor6::ui::win32
