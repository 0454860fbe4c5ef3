// Number masks of Format, over the decimal digits of a value.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

// A number as decimal text: value = 0.d1d2d3... * 10^pointPos. No leading or trailing zero
// digits; no digits at all means zero.
struct DecimalDigits {
    bool negative = false;
    std::string digits;
    int pointPos = 0;

    bool isZero() const { return digits.empty(); }
};

// The digits a value shows before rounding: 15 significant digits for Double (7 for Single),
// all digits for the exact types. Booleans are -1 and 0.
DecimalDigits decimalDigits(double d);
DecimalDigits decimalDigits(float f);
DecimalDigits decimalDigits(std::int64_t i);
DecimalDigits decimalDigits(Currency c);
DecimalDigits decimalDigits(const Decimal& d);

// Rounds half away from zero to the given number of fraction digits (negative: to tens, ...).
void roundDigits(DecimalDigits& n, int fractionDigits);

// A mask of up to four sections (positive; negative; zero; null) applied to a number.
std::u16string formatNumberMask(const DecimalDigits& n, std::u16string_view mask,
                                const Locale& loc);
// What the fourth section of a mask shows for Null ("" without one).
std::u16string formatNullSection(std::u16string_view mask);

// Splits a mask at the ";" that are not quoted or escaped.
std::vector<std::u16string_view> maskSections(std::u16string_view mask);

} // namespace velkor6
