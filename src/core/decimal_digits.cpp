#include "core/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace velkor6 {
namespace {

// A 96-bit unsigned integer in three 32-bit words, least significant first. Only 64-bit
// intermediates, so that 32-bit targets need nothing wider.
struct U96 {
    std::uint32_t w[3] = {0, 0, 0};

    static U96 of(const Decimal& d) {
        U96 u;
        u.w[0] = static_cast<std::uint32_t>(d.lo);
        u.w[1] = static_cast<std::uint32_t>(d.lo >> 32);
        u.w[2] = d.hi;
        return u;
    }

    bool isZero() const { return (w[0] | w[1] | w[2]) == 0; }

    // *this = *this * m + a; false when the result needs more than 96 bits.
    bool mulAdd(std::uint32_t m, std::uint32_t a) {
        std::uint64_t carry = a;
        for (auto& word : w) {
            const std::uint64_t t = std::uint64_t{word} * m + carry;
            word = static_cast<std::uint32_t>(t);
            carry = t >> 32;
        }
        return carry == 0;
    }

    // *this /= d; returns the remainder.
    std::uint32_t divide(std::uint32_t d) {
        std::uint64_t rem = 0;
        for (int i = 2; i >= 0; --i) {
            const std::uint64_t t = (rem << 32) | w[i];
            w[i] = static_cast<std::uint32_t>(t / d);
            rem = t % d;
        }
        return static_cast<std::uint32_t>(rem);
    }
};

void stripTrailingZeros(DecimalDigits& d) {
    while (d.count > 0 && d.digits[d.count - 1] == '0') {
        --d.count;
        ++d.exponent;
    }
    if (d.count == 0)
        d = DecimalDigits{};
}

// value * 10^scale rounded half to even; false when that needs more than 96 bits.
bool scaledMantissa(const DecimalDigits& d, int scale, U96& u) {
    u = U96{};
    if (d.count == 0)
        return true;
    const long shift = static_cast<long>(d.exponent) + scale; // result = digits * 10^shift
    const long whole = d.count + shift;                       // digits left of the point
    if (whole > 29)
        return false;
    const int kept = static_cast<int>(std::clamp<long>(whole, 0, d.count));
    for (int k = 0; k < kept; ++k) {
        if (!u.mulAdd(10, static_cast<std::uint32_t>(d.digits[k] - '0')))
            return false;
    }
    for (long k = 0; k < shift; ++k) {
        if (!u.mulAdd(10, 0))
            return false;
    }
    // With whole < 0 the value is below 0.1 units and rounds to zero.
    if (whole >= 0 && kept < d.count) {
        const char next = d.digits[kept];
        const bool sticky = kept + 1 < d.count || d.inexact;
        const bool odd = (u.w[0] & 1) != 0;
        if ((next > '5' || (next == '5' && (sticky || odd))) && !u.mulAdd(1, 1))
            return false;
    }
    return true;
}

} // namespace

DecimalDigits digitsFromInteger(std::int64_t v, int exponent) {
    DecimalDigits r;
    if (v == 0)
        return r;
    std::uint64_t m =
        v < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
    char reversed[20];
    int n = 0;
    while (m != 0) {
        reversed[n++] = static_cast<char>('0' + m % 10);
        m /= 10;
    }
    for (int j = n - 1; j >= 0; --j)
        r.digits[r.count++] = reversed[j];
    r.exponent = exponent;
    r.negative = v < 0;
    stripTrailingZeros(r);
    return r;
}

DecimalDigits digitsFromDouble(double d, int significant) {
    DecimalDigits r;
    if (d == 0 || !std::isfinite(d))
        return r;
    char buf[64];
    const auto end =
        std::to_chars(buf, buf + sizeof buf, d, std::chars_format::scientific, significant - 1).ptr;
    const char* p = buf;
    if (*p == '-') {
        r.negative = true;
        ++p;
    }
    for (; p < end && *p != 'e'; ++p) {
        if (*p != '.')
            r.digits[r.count++] = *p;
    }
    ++p; // 'e'
    const bool negativeExponent = *p == '-';
    int e = 0;
    std::from_chars(p + 1, end, e);
    r.exponent = (negativeExponent ? -e : e) - (r.count - 1);
    stripTrailingZeros(r);
    return r;
}

DecimalDigits digitsFromDecimal(const Decimal& d) {
    DecimalDigits r;
    U96 u = U96::of(d);
    char reversed[30];
    int n = 0;
    while (!u.isZero())
        reversed[n++] = static_cast<char>('0' + u.divide(10));
    for (int j = n - 1; j >= 0; --j)
        r.digits[r.count++] = reversed[j];
    r.exponent = -static_cast<int>(d.scale);
    r.negative = d.negative;
    stripTrailingZeros(r);
    return r;
}

std::optional<double> digitsToDouble(const DecimalDigits& d) {
    if (d.count == 0)
        return 0.0;
    const int magnitude = d.magnitude();
    if (magnitude > 310)
        return std::nullopt;
    if (magnitude < -330)
        return 0.0;
    char buf[DecimalDigits::capacity + 24];
    char* p = buf;
    if (d.negative)
        *p++ = '-';
    p = std::copy(d.digits.begin(), d.digits.begin() + d.count, p);
    int e = d.exponent;
    if (d.inexact) {
        // Something nonzero follows: one more digit keeps the rounding right.
        *p++ = '1';
        --e;
    }
    *p++ = 'e';
    p = std::to_chars(p, buf + sizeof buf, e).ptr;
    double v = 0;
    const auto result = std::from_chars(buf, p, v);
    if (result.ec == std::errc::result_out_of_range) {
        if (magnitude > 0)
            return std::nullopt;
        return 0.0;
    }
    return v;
}

std::optional<std::int64_t> digitsToScaledInteger(const DecimalDigits& d, int scale) {
    U96 u;
    if (!scaledMantissa(d, scale, u) || u.w[2] != 0)
        return std::nullopt;
    const std::uint64_t m = u.w[0] | (std::uint64_t{u.w[1]} << 32);
    constexpr auto maxMagnitude =
        static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (!d.negative)
        return m <= maxMagnitude ? std::optional<std::int64_t>(static_cast<std::int64_t>(m))
                                 : std::nullopt;
    if (m > maxMagnitude + 1)
        return std::nullopt;
    return m == maxMagnitude + 1 ? std::numeric_limits<std::int64_t>::min()
                                 : -static_cast<std::int64_t>(m);
}

std::optional<Decimal> digitsToDecimal(const DecimalDigits& d) {
    if (d.count == 0)
        return Decimal{};
    const long whole = d.magnitude();
    if (whole > 29)
        return std::nullopt;
    long scale = std::clamp<long>(-static_cast<long>(d.exponent), 0, 28);
    scale = std::min(scale, 29 - std::max(whole, 0L));
    for (; scale >= 0; --scale) {
        U96 u;
        if (!scaledMantissa(d, static_cast<int>(scale), u))
            continue;
        Decimal r;
        r.lo = u.w[0] | (std::uint64_t{u.w[1]} << 32);
        r.hi = u.w[2];
        r.scale = static_cast<std::uint8_t>(scale);
        r.negative = d.negative && !u.isZero();
        return r;
    }
    return std::nullopt;
}

std::u16string digitsToText(const DecimalDigits& d, char16_t decimalSeparator) {
    if (d.count == 0)
        return u"0";
    std::u16string s;
    if (d.negative)
        s += u'-';
    const int whole = d.magnitude();
    if (whole <= 0) {
        s += u'0';
        s += decimalSeparator;
        s.append(static_cast<std::size_t>(-whole), u'0');
        s.append(d.digits.begin(), d.digits.begin() + d.count);
    } else if (d.exponent >= 0) {
        s.append(d.digits.begin(), d.digits.begin() + d.count);
        s.append(static_cast<std::size_t>(d.exponent), u'0');
    } else {
        s.append(d.digits.begin(), d.digits.begin() + whole);
        s += decimalSeparator;
        s.append(d.digits.begin() + whole, d.digits.begin() + d.count);
    }
    return s;
}

int compareDigits(const DecimalDigits& a, const DecimalDigits& b) {
    const int signA = a.count == 0 ? 0 : (a.negative ? -1 : 1);
    const int signB = b.count == 0 ? 0 : (b.negative ? -1 : 1);
    if (signA != signB)
        return signA < signB ? -1 : 1;
    if (signA == 0)
        return 0;
    int order = 0; // of the absolute values
    if (a.magnitude() != b.magnitude()) {
        order = a.magnitude() < b.magnitude() ? -1 : 1;
    } else {
        const int n = std::max(a.count, b.count);
        for (int k = 0; k < n && order == 0; ++k) {
            const char x = k < a.count ? a.digits[k] : '0';
            const char y = k < b.count ? b.digits[k] : '0';
            if (x != y)
                order = x < y ? -1 : 1;
        }
        if (order == 0 && a.inexact != b.inexact)
            order = a.inexact ? 1 : -1;
    }
    return order * signA;
}

} // namespace velkor6
