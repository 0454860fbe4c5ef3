#include "platform/posix/utf8_path.h"

#include "core/text.h"

namespace velkor6::posix {

std::string nativePath(std::u16string_view path) {
    std::string s = toUtf8(path);
    for (char& c : s) {
        if (c == '\\')
            c = '/';
    }
    return s;
}

namespace {

// Length and first-byte payload of a UTF-8 sequence, or 0 for a byte that cannot start one.
int sequenceLength(unsigned char b) {
    if (b < 0xC2)
        return 0;
    if (b < 0xE0)
        return 2;
    if (b < 0xF0)
        return 3;
    if (b < 0xF5)
        return 4;
    return 0;
}

} // namespace

void appendUtf8(std::u16string& out, std::string_view utf8) {
    const std::size_t n = utf8.size();
    std::size_t i = 0;
    while (i < n) {
        const auto b = static_cast<unsigned char>(utf8[i]);
        if (b < 0x80) {
            out.push_back(static_cast<char16_t>(b));
            ++i;
            continue;
        }
        const int len = sequenceLength(b);
        char32_t cp = len == 2 ? (b & 0x1F) : len == 3 ? (b & 0x0F) : (b & 0x07);
        bool valid = len != 0 && i + len <= n;
        for (int k = 1; valid && k < len; ++k) {
            const auto c = static_cast<unsigned char>(utf8[i + k]);
            valid = (c & 0xC0) == 0x80;
            cp = (cp << 6) | (c & 0x3F);
        }
        // Overlong forms, surrogates and values past U+10FFFF are not UTF-8.
        if (valid && ((len == 3 && (cp < 0x800 || (cp >= 0xD800 && cp <= 0xDFFF))) ||
                      (len == 4 && (cp < 0x10000 || cp > 0x10FFFF))))
            valid = false;
        if (!valid) {
            out.push_back(u'\uFFFD');
            ++i;
            continue;
        }
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            out.push_back(static_cast<char16_t>(cp));
        }
        i += len;
    }
}

std::u16string fromNative(std::string_view utf8) {
    std::u16string s;
    s.reserve(utf8.size());
    appendUtf8(s, utf8);
    return s;
}

} // namespace velkor6::posix
