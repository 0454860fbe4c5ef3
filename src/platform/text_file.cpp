#include "platform/text_file.h"

#include "core/text.h"
#include "platform/ansi.h"

#include <algorithm>

namespace velkor6 {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16LeMark = "\xFF\xFE";
constexpr std::string_view utf16BeMark = "\xFE\xFF";

std::string utf16Bytes(std::u16string_view text, bool littleEndian) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const char16_t c : text) {
        const char lo = static_cast<char>(c & 0xFF);
        const char hi = static_cast<char>(c >> 8);
        bytes.push_back(littleEndian ? lo : hi);
        bytes.push_back(littleEndian ? hi : lo);
    }
    return bytes;
}

} // namespace

TextEncoding textEncoding(std::string_view bytes) {
    if (bytes.starts_with(utf8Mark))
        return TextEncoding::Utf8Mark;
    if (bytes.starts_with(utf16LeMark))
        return TextEncoding::Utf16Le;
    if (bytes.starts_with(utf16BeMark))
        return TextEncoding::Utf16Be;
    return plainTextEncoding(bytes);
}

TextEncoding writeEncoding(TextEncoding read, std::u16string_view text) {
    if (read != TextEncoding::Ansi || newTextEncoding() != TextEncoding::Utf8)
        return read;
    // UTF-8 where the code page would lose a character, and where the code page's bytes would read
    // back as UTF-8 (the text "\u00C3\u00A4" in Windows-1252 is the UTF-8 of "\u00E4"): in UTF-8
    // both read back as written. Text in ASCII is the same bytes either way.
    const bool lossless =
        std::all_of(text.begin(), text.end(), [](char16_t c) { return charToAnsi(c) >= 0; });
    if (!lossless || plainTextEncoding(toAnsi(text)) != TextEncoding::Ansi)
        return TextEncoding::Utf8;
    return read;
}

std::u16string decodeText(std::string_view bytes, TextEncoding encoding) {
    switch (encoding) {
    case TextEncoding::Ansi:
        return fromAnsi(bytes);
    case TextEncoding::Utf8:
        return fromUtf8(bytes);
    case TextEncoding::Utf8Mark:
        return fromUtf8(bytes.starts_with(utf8Mark) ? bytes.substr(utf8Mark.size()) : bytes);
    case TextEncoding::Utf16Le:
        return fromUtf16(bytes.starts_with(utf16LeMark) ? bytes.substr(2) : bytes, false);
    case TextEncoding::Utf16Be:
        return fromUtf16(bytes.starts_with(utf16BeMark) ? bytes.substr(2) : bytes, true);
    }
    return {};
}

std::string encodeText(std::u16string_view text, TextEncoding encoding, bool withMark) {
    switch (encoding) {
    case TextEncoding::Ansi:
        return toAnsi(text);
    case TextEncoding::Utf8:
        return toUtf8(text);
    case TextEncoding::Utf8Mark:
        return (withMark ? std::string(utf8Mark) : std::string()) + toUtf8(text);
    case TextEncoding::Utf16Le:
        return (withMark ? std::string(utf16LeMark) : std::string()) + utf16Bytes(text, true);
    case TextEncoding::Utf16Be:
        return (withMark ? std::string(utf16BeMark) : std::string()) + utf16Bytes(text, false);
    }
    return {};
}

} // namespace velkor6
