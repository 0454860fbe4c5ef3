// `lib` members for number parsing and conversion: forwards to src/values.
#include "values/hex.h"
#include "values/numbers.h"
#include "values/typed_conversion.h"
#include "velkor6/lib.h"

namespace velkor6 {

double lib::vkrVal(std::u16string_view sSource) {
    return values::lenientNumber(sSource, locale());
}

Variant lib::vkrCVal(std::int32_t VarType, const Variant& SourceVal) {
    const Date today = values::dateOnly(module().platform().clock->now());
    return values::typedConversion(VarType, SourceVal, locale(), today);
}

Variant lib::vkrRound(const Variant& vSourceValue, std::int16_t iDecimalPlaces) {
    return values::roundValue(vSourceValue, iDecimalPlaces, locale());
}

std::int32_t lib::vkrHexToDec(const Variant& vHexVal) {
    return values::hexToLong(vHexVal, locale());
}

double lib::vkrHex2Dbl(std::u16string_view sValue) {
    return values::hexToDouble(sValue);
}

std::u16string lib::vkrDbl2Hex(double dValue, std::int16_t iMinLen) {
    return values::doubleToHex(dValue, iMinLen);
}

void lib::vkrBruchrechnung(float nValue, std::int32_t& lZaehler, std::int32_t& lNenner) {
    const values::Fraction f = values::approximateFraction(nValue);
    lZaehler = f.numerator;
    lNenner = f.denominator;
}

bool lib::vkrCompare(float nSource, float nTarget, float nTolerance) {
    return values::withinTolerance(nSource, nTarget, nTolerance);
}

bool lib::vkrAND(std::int32_t lVal1, std::int32_t lVal2) {
    return values::hasAllBits(lVal1, lVal2);
}

} // namespace velkor6
