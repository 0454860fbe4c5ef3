#include "values/hex.h"

#include "core/convert.h"
#include "core/text.h"
#include "platform/ansi.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6::values {
namespace {

constexpr double splitFactor = 16777216.0; // 2^24: six hexadecimal digits in the low part

int hexDigitValue(char16_t c) {
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    return -1;
}

std::u16string digitsOf(std::uint32_t value, std::size_t minDigits = 1) {
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    std::u16string out;
    while (value != 0 || out.size() < minDigits) {
        out.insert(out.begin(), digits[value & 0xF]);
        value >>= 4;
    }
    return out;
}

// Raw bytes after a leading "x", last character most significant.
std::u16string bytesAsHex(std::u16string_view bytes) {
    std::u16string out;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        int code = charToAnsi(bytes[i]);
        if (code < 0)
            code = '?'; // what Asc() gives a character the code page lacks
        out += digitsOf(static_cast<std::uint32_t>(code), 2);
    }
    return out;
}

} // namespace

std::int32_t readHexLong(std::u16string_view digits) {
    std::uint64_t value = 0;
    for (char16_t c : digits) {
        if (c == u' ' || c == u'\t' || c == u'\n')
            continue; // Val ignores blanks anywhere
        const int d = hexDigitValue(c);
        if (d < 0)
            break;
        value = value * 16 + static_cast<std::uint64_t>(d);
        if (value > 0xFFFFFFFFu)
            throw VbError(vberr::overflow);
    }
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

std::u16string hexText(double d) {
    const double whole = roundHalfEven(d);
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0))
        throw VbError(vberr::overflow);
    return digitsOf(static_cast<std::uint32_t>(static_cast<std::int32_t>(whole)));
}

std::optional<std::u16string> hexText(const Variant& v, const Locale& loc) {
    switch (v.type()) {
    case VarType::Null:
        return std::nullopt;
    case VarType::Empty:
        return u"0";
    case VarType::Integer:
        return digitsOf(static_cast<std::uint16_t>(v.integer()));
    case VarType::Boolean:
        return digitsOf(v.boolean() ? 0xFFFFu : 0u);
    case VarType::Byte:
        return digitsOf(v.byte());
    case VarType::Long:
        return digitsOf(static_cast<std::uint32_t>(v.longValue()));
    default:
        return digitsOf(static_cast<std::uint32_t>(toLong(v, loc)));
    }
}

std::int32_t hexToLong(const Variant& v, const Locale& loc) {
    try {
        if (v.isString()) {
            std::u16string_view s = v.string();
            if (!s.empty() && (s.front() == u'x' || s.front() == u'X'))
                return readHexLong(bytesAsHex(s.substr(1)));
            return readHexLong(s);
        }
        return readHexLong(hexText(v, loc).value_or(u""));
    } catch (const VbError&) {
        return 0;
    }
}

double hexToDouble(std::u16string_view text) {
    std::u16string digits;
    digits.reserve(text.size());
    for (char16_t c : text) {
        if (c != u'&' && c != u'H') // a lower-case "h" stays and stops the reading
            digits.push_back(c);
    }
    const std::size_t split = digits.size() > 6 ? digits.size() - 6 : 0;
    const std::u16string_view all = digits;
    return readHexLong(all.substr(0, split)) * splitFactor + readHexLong(all.substr(split));
}

std::u16string doubleToHex(double value, int minLength) {
    const double high = std::floor(value / splitFactor);
    const double low = value - high * splitFactor;
    std::u16string text;
    if (high <= 0) {
        text = hexText(low);
    } else {
        const std::u16string lowDigits = u"000000" + hexText(low);
        text = hexText(high) + lowDigits.substr(lowDigits.size() - 6);
    }
    if (minLength > 0 && text.size() < static_cast<std::size_t>(minLength))
        text.insert(0, static_cast<std::size_t>(minLength) - text.size(), u'0');
    return text;
}

} // namespace velkor6::values
