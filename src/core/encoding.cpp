// UTF-8 and UTF-16 bytes on either side of the UTF-16 text the library works on; the ANSI code
// page has a file for each platform.
#include "core/text.h"

#include <cstdint>

namespace velkor6 {
namespace {

constexpr char16_t replacementChar = 0xFFFD;

bool isHighSurrogate(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
bool isLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

void appendUtf8(std::string& out, char32_t cp) {
    auto put = [&out](unsigned v) { out.push_back(static_cast<char>(v)); };
    if (cp < 0x80) {
        put(cp);
    } else if (cp < 0x800) {
        put(0xC0 | (cp >> 6));
        put(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        put(0xE0 | (cp >> 12));
        put(0x80 | ((cp >> 6) & 0x3F));
        put(0x80 | (cp & 0x3F));
    } else {
        put(0xF0 | (cp >> 18));
        put(0x80 | ((cp >> 12) & 0x3F));
        put(0x80 | ((cp >> 6) & 0x3F));
        put(0x80 | (cp & 0x3F));
    }
}

void appendUtf16(std::u16string& out, char32_t cp) {
    if (cp < 0x10000) {
        out.push_back(static_cast<char16_t>(cp));
    } else {
        cp -= 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
    }
}

constexpr char32_t illFormed = 0xFFFFFFFF;

// Decodes one UTF-8 sequence at s[i]; advances i past it. An ill-formed sequence yields illFormed
// and consumes its longest valid beginning (at least one byte).
char32_t decodeUtf8(std::string_view s, std::size_t& i) {
    const auto byte = [&s](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char lead = byte(i++);
    if (lead < 0x80)
        return lead;
    int trail = 0;
    char32_t cp = 0;
    unsigned char lo = 0x80;
    unsigned char hi = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        trail = 1;
        cp = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        trail = 2;
        cp = lead & 0x0F;
        if (lead == 0xE0)
            lo = 0xA0;
        else if (lead == 0xED)
            hi = 0x9F; // no encoded surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        trail = 3;
        cp = lead & 0x07;
        if (lead == 0xF0)
            lo = 0x90;
        else if (lead == 0xF4)
            hi = 0x8F;
    } else {
        return illFormed;
    }
    for (int k = 0; k < trail; ++k) {
        if (i >= s.size() || byte(i) < lo || byte(i) > hi)
            return illFormed;
        cp = (cp << 6) | (byte(i++) & 0x3F);
        lo = 0x80;
        hi = 0xBF;
    }
    return cp;
}

} // namespace

std::string toUtf8(std::u16string_view s) {
    std::string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size(); ++i) {
        const char16_t c = s[i];
        if (isHighSurrogate(c) && i + 1 < s.size() && isLowSurrogate(s[i + 1])) {
            appendUtf8(out, 0x10000 + ((char32_t(c) - 0xD800) << 10) + (s[i + 1] - 0xDC00));
            ++i;
        } else if (isHighSurrogate(c) || isLowSurrogate(c)) {
            appendUtf8(out, replacementChar);
        } else {
            appendUtf8(out, c);
        }
    }
    return out;
}

std::u16string fromUtf8(std::string_view s) {
    std::u16string out;
    out.reserve(s.size());
    std::size_t i = 0;
    while (i < s.size()) {
        const char32_t cp = decodeUtf8(s, i);
        appendUtf16(out, cp == illFormed ? replacementChar : cp);
    }
    return out;
}

bool isValidUtf8(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size()) {
        if (decodeUtf8(s, i) == illFormed)
            return false;
    }
    return true;
}

std::u16string fromUtf16(std::string_view bytes, bool bigEndian) {
    std::u16string out;
    out.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        out.push_back(
            static_cast<char16_t>(bigEndian ? (first << 8) | second : (second << 8) | first));
    }
    return out;
}

} // namespace velkor6
