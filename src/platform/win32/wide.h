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
