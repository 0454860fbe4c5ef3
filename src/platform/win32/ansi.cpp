// The ANSI code page on Windows: the process's own (CP_ACP), converted by the system exactly
// as the "A" functions and VB's string conversions do it, best-fit mappings included
// ("Ā" becomes "A" where the code page has no "Ā").
#include "platform/ansi.h"

#include "core/text.h"
#include "platform/text_file.h"

#include <windows.h>

namespace velkor6 {
namespace {

int toWide(std::string_view s, wchar_t* out, int capacity) {
    return MultiByteToWideChar(CP_ACP, 0, s.data(), static_cast<int>(s.size()), out, capacity);
}

int toBytes(std::u16string_view s, char* out, int capacity, BOOL* usedDefault) {
    return WideCharToMultiByte(CP_ACP, 0, reinterpret_cast<const wchar_t*>(s.data()),
                               static_cast<int>(s.size()), out, capacity, nullptr, usedDefault);
}

} // namespace

char16_t ansiToChar(unsigned char b) {
    const char byte = static_cast<char>(b);
    wchar_t c = 0;
    // A lead byte of a double-byte code page is no character on its own.
    return toWide(std::string_view(&byte, 1), &c, 1) == 1 ? static_cast<char16_t>(c) : u'?';
}

int charToAnsi(char16_t c) {
    char bytes[4] = {};
    BOOL usedDefault = FALSE;
    const int n = toBytes(std::u16string_view(&c, 1), bytes, sizeof bytes, &usedDefault);
    if (n != 1 || usedDefault)
        return -1;
    return static_cast<unsigned char>(bytes[0]);
}

std::string toAnsi(std::u16string_view s) {
    if (s.empty())
        return {};
    std::string out(static_cast<std::size_t>(toBytes(s, nullptr, 0, nullptr)), '\0');
    toBytes(s, out.data(), static_cast<int>(out.size()), nullptr);
    return out;
}

std::u16string fromAnsi(std::string_view s) {
    if (s.empty())
        return {};
    std::u16string out(static_cast<std::size_t>(toWide(s, nullptr, 0)), u'\0');
    toWide(s, reinterpret_cast<wchar_t*>(out.data()), static_cast<int>(out.size()));
    return out;
}

// Files meant for people are in the code page, as the system's profile and file functions read
// and write them.
TextEncoding plainTextEncoding(std::string_view) {
    return TextEncoding::Ansi;
}

TextEncoding newTextEncoding() {
    return TextEncoding::Ansi;
}

} // namespace velkor6
