// Lenient number reading, rounding, fractions and comparisons for forms where users type numbers.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string_view>

namespace velkor6::values {

// Keeps only digits, "," "." "-" "+" and reads the rest as a number in the locale, taking surplus
// decimal separators for grouping marks or stray characters. Anything unreadable gives 0.
double lenientNumber(std::u16string_view source, const Locale& loc);

// Rounds Integer, Long, Single, Double and Currency values half away from zero to `places`
// decimals by formatting and reading back; every other value, or a negative `places`, comes back
// unchanged.
Variant roundValue(const Variant& v, int places, const Locale& loc);

struct Fraction {
    std::int32_t numerator = 0;
    std::int32_t denominator = 0;
    friend bool operator==(const Fraction&, const Fraction&) = default;
};

// The first denominator from 2 to 64 that makes `value` whole, else the one with the smallest
// fractional remainder, all in single precision. 1 gives 0/0; values beyond Long give 0/0.
Fraction approximateFraction(float value);

// target - tolerance <= source <= target + tolerance in single precision; error 6 when a bound
// overflows.
bool withinTolerance(float source, float target, float tolerance);

// Every bit of `mask` is set in `value`.
constexpr bool hasAllBits(std::int32_t value, std::int32_t mask) {
    return (value & mask) == mask;
}

} // namespace velkor6::values
