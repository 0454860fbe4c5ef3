// Text to number the way the automation parser reads a user's number: lenient about blanks,
// signs, parentheses, grouping marks and the currency symbol, strict about anything left over.
#include "core/decimal_digits.h"

#include <algorithm>
#include <cstdint>

namespace velkor6 {
namespace {

bool isBlank(char16_t c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}
bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

// Collects the digits of the mantissa, dropping leading and trailing zeros and what exceeds the
// capacity, and keeps track of the power of ten.
class DigitCollector {
public:
    void add(int digit, bool fraction) {
        if (fraction)
            --shift_;
        if (digit == 0) {
            if (d_.count > 0)
                ++pendingZeros_;
            return;
        }
        while (pendingZeros_ > 0 && d_.count < DecimalDigits::capacity) {
            d_.digits[d_.count++] = '0';
            --pendingZeros_;
        }
        if (pendingZeros_ == 0 && d_.count < DecimalDigits::capacity) {
            d_.digits[d_.count++] = static_cast<char>('0' + digit);
        } else {
            dropped_ += pendingZeros_ + 1;
            pendingZeros_ = 0;
            d_.inexact = true;
        }
    }

    DecimalDigits finish(bool negative, long exponent) {
        long e = shift_ + pendingZeros_ + dropped_ + exponent;
        while (d_.count > 0 && d_.digits[d_.count - 1] == '0') {
            --d_.count;
            ++e;
        }
        if (d_.count == 0)
            return DecimalDigits{};
        d_.exponent = static_cast<int>(std::clamp(e, -1000000000L, 1000000000L));
        d_.negative = negative;
        return d_;
    }

private:
    DecimalDigits d_;
    long shift_ = 0;
    long pendingZeros_ = 0;
    long dropped_ = 0;
};

int radixDigit(char16_t c, int radix) {
    int v = 99;
    if (isDigit(c))
        v = c - u'0';
    else if (c >= u'a' && c <= u'f')
        v = c - u'a' + 10;
    else if (c >= u'A' && c <= u'F')
        v = c - u'A' + 10;
    return v < radix ? v : -1;
}

// "&H1F" and "&O17": 16-bit when the value fits 16 bits ("&HFFFF" is -1), else 32-bit.
NumberParse parseRadix(std::u16string_view s, std::size_t i, DecimalDigits& out) {
    const int radix = (s[i + 1] == u'H' || s[i + 1] == u'h') ? 16 : 8;
    i += 2;
    std::uint64_t value = 0;
    bool any = false;
    bool tooBig = false;
    for (; i < s.size(); ++i) {
        const int v = radixDigit(s[i], radix);
        if (v < 0)
            break;
        any = true;
        value = value * static_cast<unsigned>(radix) + static_cast<unsigned>(v);
        if (value > 0xFFFFFFFFu) {
            tooBig = true;
            value = 0xFFFFFFFFu;
        }
    }
    while (i < s.size() && isBlank(s[i]))
        ++i;
    if (!any || i != s.size())
        return NumberParse::Invalid;
    if (tooBig)
        return NumberParse::Overflow;
    const std::int64_t signedValue =
        value <= 0xFFFFu ? static_cast<std::int16_t>(static_cast<std::uint16_t>(value))
                         : static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
    out = digitsFromInteger(signedValue);
    return NumberParse::Ok;
}

} // namespace

NumberParse parseDigits(std::u16string_view s, const Locale& loc, DecimalDigits& out) {
    out = DecimalDigits{};
    const std::size_t n = s.size();
    std::size_t i = 0;
    while (i < n && isBlank(s[i]))
        ++i;
    if (i + 1 < n && s[i] == u'&') {
        const char16_t r = s[i + 1];
        if (r == u'H' || r == u'h' || r == u'O' || r == u'o')
            return parseRadix(s, i, out);
        return NumberParse::Invalid;
    }

    bool hasSign = false;
    bool negative = false;
    bool hasCurrency = false;
    bool openParen = false;
    bool closedParen = false;
    const std::u16string_view currency = loc.currencySymbol;
    auto takeCurrency = [&] {
        if (hasCurrency || currency.empty() || s.substr(i, currency.size()) != currency)
            return false;
        i += currency.size();
        hasCurrency = true;
        return true;
    };
    auto takeSign = [&] {
        if (hasSign || (s[i] != u'+' && s[i] != u'-'))
            return false;
        hasSign = true;
        negative = s[i] == u'-';
        ++i;
        return true;
    };

    while (i < n) {
        if (isBlank(s[i])) {
            ++i;
        } else if (s[i] == u'(' && !openParen) {
            openParen = true;
            ++i;
        } else if (!takeSign() && !takeCurrency()) {
            break;
        }
    }

    DigitCollector digits;
    bool anyDigit = false;
    // Grouping marks may sit anywhere in the integer part once it has begun, in groups of any size.
    for (; i < n; ++i) {
        if (isDigit(s[i])) {
            digits.add(s[i] - u'0', false);
            anyDigit = true;
        } else if (!(anyDigit && s[i] == loc.grouping)) {
            break;
        }
    }
    if (i < n && s[i] == loc.decimal) {
        for (++i; i < n && isDigit(s[i]); ++i) {
            digits.add(s[i] - u'0', true);
            anyDigit = true;
        }
    }
    if (!anyDigit)
        return NumberParse::Invalid;

    long exponent = 0;
    if (i < n && (s[i] == u'e' || s[i] == u'E')) {
        ++i;
        bool negativeExponent = false;
        if (i < n && (s[i] == u'+' || s[i] == u'-'))
            negativeExponent = s[i++] == u'-';
        if (i >= n || !isDigit(s[i]))
            return NumberParse::Invalid;
        for (; i < n && isDigit(s[i]); ++i) {
            // Far beyond any range already; stop growing so the sum cannot overflow.
            if (exponent < 100000)
                exponent = exponent * 10 + (s[i] - u'0');
        }
        if (negativeExponent)
            exponent = -exponent;
    }

    while (i < n) {
        if (isBlank(s[i])) {
            ++i;
        } else if (s[i] == u')' && openParen && !closedParen) {
            closedParen = true;
            ++i;
        } else if (!takeSign() && !takeCurrency()) {
            break;
        }
    }
    if (i != n || openParen != closedParen || (openParen && hasSign))
        return NumberParse::Invalid;
    out = digits.finish(negative || openParen, exponent);
    return NumberParse::Ok;
}

} // namespace velkor6
