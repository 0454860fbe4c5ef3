// The ANSI code page where no system supplies one: Windows-1252, the code page of the
// Western European Windows installations whose files and registries the library reads.
#include "platform/ansi.h"

#include "core/text.h"
#include "platform/text_file.h"

#include <array>

namespace velkor6 {
namespace {

// Bytes 0x80 to 0x9F. The five bytes the code page leaves undefined keep their C1 controls,
// as the system's conversion does.
constexpr std::array<char16_t, 32> highControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

char16_t ansiToChar(unsigned char b) {
    if (b >= 0x80 && b <= 0x9F)
        return highControls[b - 0x80];
    return b;
}

int charToAnsi(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    for (std::size_t i = 0; i < highControls.size(); ++i) {
        if (highControls[i] == c)
            return static_cast<int>(0x80 + i);
    }
    return -1;
}

std::string toAnsi(std::u16string_view s) {
    std::string out;
    out.reserve(s.size());
    for (char16_t c : s) {
        const int b = charToAnsi(c);
        out.push_back(b < 0 ? '?' : static_cast<char>(b));
    }
    return out;
}

std::u16string fromAnsi(std::string_view s) {
    std::u16string out;
    out.reserve(s.size());
    for (char b : s)
        out.push_back(ansiToChar(static_cast<unsigned char>(b)));
    return out;
}

TextEncoding plainTextEncoding(std::string_view bytes) {
    return isValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Ansi;
}

TextEncoding newTextEncoding() {
    return TextEncoding::Utf8;
}

} // namespace velkor6
