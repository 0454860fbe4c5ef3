#include "ui/win32/message_font.h"

namespace velkor6::ui::win32 {

Font messageFont(int pointSize, bool bold, const std::wstring& face) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        return Font(static_cast<HFONT>(nullptr));
    LOGFONTW font = metrics.lfMessageFont;
    if (pointSize > 0) {
        const HDC screen = GetDC(nullptr);
        font.lfHeight = -MulDiv(pointSize, GetDeviceCaps(screen, LOGPIXELSY), 72);
        ReleaseDC(nullptr, screen);
        font.lfWidth = 0;
    }
    if (bold)
        font.lfWeight = FW_BOLD;
    if (!face.empty() && face.size() < LF_FACESIZE) {
        face.copy(font.lfFaceName, face.size());
        font.lfFaceName[face.size()] = 0;
    }
    return Font(CreateFontIndirectW(&font));
}

SIZE measureText(HFONT font, std::wstring_view text, int wrapWidth) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ previous = SelectObject(
        screen, font != nullptr ? static_cast<HGDIOBJ>(font) : GetStockObject(DEFAULT_GUI_FONT));
    RECT r{0, 0, wrapWidth > 0 ? wrapWidth : 0, 0};
    UINT format = DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS;
    if (wrapWidth > 0)
        format |= DT_WORDBREAK;
    // An empty text still takes one line, as a label does.
    const std::wstring_view measured = text.empty() ? std::wstring_view(L" ") : text;
    DrawTextW(screen, measured.data(), static_cast<int>(measured.size()), &r, format);
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    return {text.empty() ? 0 : r.right - r.left, r.bottom - r.top};
}

} // namespace velkor6::ui::win32
