// A number as its significant decimal digits and a power of ten. Text, Currency and Decimal meet
// here so that their conversions stay exact and never pass through binary floating point.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velkor6 {

struct DecimalDigits {
    // Enough for a Decimal's 29 digits and its rounding digit, and for a correctly rounded double.
    static constexpr int capacity = 40;

    std::array<char, capacity> digits{}; // '0'..'9'; no leading or trailing zeros
    int count = 0;                       // significant digits held; 0 means the value is zero
    int exponent = 0;                    // value = digits * 10^exponent
    bool negative = false;
    bool inexact = false; // nonzero digits beyond capacity were dropped

    // Decimal places left of the point: 1 for 1..9, 0 for 0.1..0.9, -1 for 0.01..
    int magnitude() const { return count + exponent; }
};

enum class NumberParse { Ok, Invalid, Overflow };

// Reads text as the automation parser does (see parseNumber in core/convert.h).
NumberParse parseDigits(std::u16string_view text, const Locale& loc, DecimalDigits& out);

DecimalDigits digitsFromInteger(std::int64_t v, int exponent = 0);
// The double rounded to `significant` digits (15 for Double, 7 for Single), as VB's text does.
DecimalDigits digitsFromDouble(double d, int significant);
DecimalDigits digitsFromDecimal(const Decimal& d);

// Correctly rounded; nullopt when the value is beyond the double range (tiny values become 0).
std::optional<double> digitsToDouble(const DecimalDigits& d);
// value * 10^scale rounded half to even, when it fits 64 bits.
std::optional<std::int64_t> digitsToScaledInteger(const DecimalDigits& d, int scale);
// As many fraction digits as fit (at most 28), rounded half to even; nullopt beyond the range.
std::optional<Decimal> digitsToDecimal(const DecimalDigits& d);

// The plain text "-123.45" (no exponent, no grouping) with the given decimal separator.
std::u16string digitsToText(const DecimalDigits& d, char16_t decimalSeparator);

// -1, 0 or 1 by value.
int compareDigits(const DecimalDigits& a, const DecimalDigits& b);

} // namespace velkor6
