// UTF-16 text between the library's strings and the wide-character Win32 functions.
#pragma once

#include <string>
#include <string_view>

namespace velkor6::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline std::wstring wide(std::u16string_view s) {
    return std::wstring(reinterpret_cast<const wchar_t*>(s.data()), s.size());
}
inline std::u16string fromWide(std::wstring_view s) {
    return std::u16string(reinterpret_cast<const char16_t*>(s.data()), s.size());
}
inline std::u16string fromWide(const wchar_t* s) {
    return s == nullptr ? std::u16string() : fromWide(std::wstring_view(s));
}

} // namespace velkor6::win32

#include <windows.h>

namespace velkor6::win32 {

// Text through the process's ANSI code page, as the "A" functions take and give it.
inline std::string toAnsiCodePage(std::u16string_view s) {
    if (s.empty())
        return {};
    const auto* w = reinterpret_cast<const wchar_t*>(s.data());
    const int n =
        WideCharToMultiByte(CP_ACP, 0, w, static_cast<int>(s.size()), nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(n), '\0');
    WideCharToMultiByte(CP_ACP, 0, w, static_cast<int>(s.size()), out.data(), n, nullptr, nullptr);
    return out;
}

inline std::u16string fromAnsiCodePage(std::string_view s) {
    if (s.empty())
        return {};
    const int n = MultiByteToWideChar(CP_ACP, 0, s.data(), static_cast<int>(s.size()), nullptr, 0);
    std::wstring out(static_cast<std::size_t>(n), L'\0');
    MultiByteToWideChar(CP_ACP, 0, s.data(), static_cast<int>(s.size()), out.data(), n);
    return fromWide(out);
}

} // namespace velkor6::win32
