// The child controls of the dialogs, made at the places the dialog logic computed.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "ui/win32/owned.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::ui::win32 {

LPCWSTR systemResource(LPCSTR id);

// The system's icon for a message-box symbol style (16, 32, 48 or 64); null for another.
// The system owns these icons: they are shared and never destroyed.
HICON systemIcon(std::int32_t symbol);

HWND makeLabel(HWND parent, const RECT& place, std::wstring_view text, HFONT font, bool wrap);
HWND makeIcon(HWND parent, const RECT& place, HICON icon);
HWND makeButton(HWND parent, const RECT& place, std::wstring_view caption, HFONT font, int id,
                bool isDefault);
// A text box; `multiLine` for the zoom editor, `passwordChar` 0 for plain text, `maxLength` 0
// for no limit.
HWND makeEdit(HWND parent, const RECT& place, std::wstring_view text, HFONT font, int id,
              bool multiLine, wchar_t passwordChar, int maxLength);
HWND makeProgressBar(HWND parent, const RECT& place);
// A tool tip for `control`, shown when the mouse rests on it; it goes with `parent`.
void addToolTip(HWND parent, HWND control, const std::wstring& text);

void moveControl(HWND control, const RECT& place);
std::wstring windowText(HWND window);

// Msftedit.dll, loaded for the first rich-text control and kept while the host lives: unloaded
// and loaded again between two forms, Wine's rich-text controls stopped painting.
class RichEditLibrary {
public:
    // Whether rich-text controls can be made; loads the library the first time.
    bool load();

private:
    Library library_;
};

// A read-only rich-text control showing `rtf`, a document or a fragment of one, in `font` and
// `colour` where the text names none of its own.
HWND makeRichText(HWND parent, const RECT& place, std::u16string_view rtf, HFONT font,
                  COLORREF colour);
void setRichText(HWND control, std::u16string_view rtf);
// Centres every paragraph of a rich-text control.
void centreParagraphs(HWND control);

// `rtf` as a complete document in 7-bit characters: a fragment is wrapped in a document, and
// every character above 127 becomes a \uN? escape (N the signed 16-bit code).
std::string asciiRtf(std::u16string_view rtf);

} // namespace velkor6::ui::win32
