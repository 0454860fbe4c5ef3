// VB's conversions between Variant types (CInt, CLng, CDbl, CStr, ...), locale-aware.
#pragma once

#include "core/text.h"
#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <optional>
#include <string>

namespace velkor6 {

// Each raises VbError 13 for a value that is no number (or date, for toDate), 6 when the value is
// out of the type's range, 94 for Null. Integer conversions round half to even.
std::int16_t toInteger(const Variant& v, const Locale& loc);
std::int32_t toLong(const Variant& v, const Locale& loc);
float toSingle(const Variant& v, const Locale& loc);
double toDouble(const Variant& v, const Locale& loc);
Currency toCurrency(const Variant& v, const Locale& loc);
Date toDate(const Variant& v, const Locale& loc);
std::u16string toString(const Variant& v, const Locale& loc); // CStr: Empty gives ""
bool toBoolean(const Variant& v, const Locale& loc);
Decimal toDecimal(const Variant& v, const Locale& loc);
std::uint8_t toByte(const Variant& v, const Locale& loc);

// The conversion named by a type code (2 Integer ... 17 Byte); Variant (12) returns v unchanged.
Variant convertTo(const Variant& v, VarType type, const Locale& loc);

// Text to number as the automation parser reads it: blanks, one sign (leading or trailing),
// parentheses for negatives, grouping marks in the integer part, the currency symbol, one
// decimal separator, an exponent, &H and &O. Anything else makes it fail (nullopt).
std::optional<double> parseNumber(std::u16string_view text, const Locale& loc);

bool isNumeric(const Variant& v, const Locale& loc);
bool isDate(const Variant& v, const Locale& loc);

// Number to text as CStr writes it: up to 15 significant digits for Double (7 for Single),
// the locale's decimal separator, no grouping, exponent form "1E+20" / "1E-05" where VB uses it.
std::u16string doubleToText(double d, const Locale& loc);
std::u16string singleToText(float f, const Locale& loc);
std::u16string currencyToText(Currency c, const Locale& loc);
std::u16string decimalToText(const Decimal& d, const Locale& loc);

// Rounding as the integer conversions do it: half to even. Range checks are the caller's.
double roundHalfEven(double d);

double decimalToDouble(const Decimal& d);
// Raises error 6 beyond the Decimal range; keeps at most 28 fraction digits.
Decimal decimalFromDouble(double d);
double currencyToDouble(Currency c);
Currency currencyFromDouble(double d); // half to even at the fourth decimal; error 6 out of range

// VB's "=" between two Variants (numbers by value across types, strings exactly or in text
// mode). Raises 13 when the two cannot be compared; Null on either side is reported as nullopt.
std::optional<int> compareVariants(const Variant& a, const Variant& b, Compare mode,
                                   const Locale& loc);

// The name of a scalar type as TypeName() writes it: "Integer", "String", "Empty", ...
std::u16string_view typeBaseName(VarType t);
// TypeName() of a value: "Integer", "String", "Variant()", ...
std::u16string typeName(const Variant& v);

} // namespace velkor6
