#include "values/numbers.h"

#include <cmath>

namespace velkor6::values {
namespace {

bool fitsLong(float whole) {
    return whole >= -2147483648.0f && whole < 2147483648.0f;
}

} // namespace

Fraction approximateFraction(float value) {
    Fraction result;
    if (value == 1.0f)
        return result;
    float best = 100.0f;
    int bestDenominator = 0;
    // The denominator 1 is never tried: a whole value n comes back as 2n/2.
    for (int d = 2; d <= 64; ++d) {
        const float product = value * static_cast<float>(d);
        const float whole = std::floor(product);
        if (product == whole) {
            if (fitsLong(whole))
                result = {static_cast<std::int32_t>(whole), d};
            return result;
        }
        const float remainder = product - whole;
        if (remainder < best) {
            best = remainder;
            bestDenominator = d;
        }
    }
    if (bestDenominator == 0) // NaN: nothing compared
        return result;
    const float whole = std::floor(value * static_cast<float>(bestDenominator));
    if (fitsLong(whole))
        result = {static_cast<std::int32_t>(whole), bestDenominator};
    return result;
}

} // namespace velkor6::values
