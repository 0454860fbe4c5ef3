// Hexadecimal text and numbers, including values wider than 32 bits split at 24 bits.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velkor6::values {

// What VB's Val makes of "&H" + digits + "&": blanks are skipped, reading stops at the first
// character that is not a hexadecimal digit, no digits give 0, and the value is a 32-bit Long
// (FFFFFFFF is -1). A value wider than 32 bits raises error 6.
std::int32_t readHexLong(std::u16string_view digits);

// VB's Hex(): upper-case digits without prefix. Integers and Booleans keep their 16-bit width
// (Hex of Integer -1 is FFFF), Bytes their 8 bits; other numbers are rounded half to even to a
// Long first (error 6 beyond it). Null gives nullopt, Empty "0", objects and arrays error 13.
std::optional<std::u16string> hexText(const Variant& v, const Locale& loc);
std::u16string hexText(double d);

// vkrHexToDec: a String is read as hexadecimal digits, or, when it starts with "x", as raw
// little-endian bytes after the "x"; any other value is written with Hex() first. 0 for anything
// that cannot be read.
std::int32_t hexToLong(const Variant& v, const Locale& loc);

// Hexadecimal text of any width to a number: every "&" and upper-case "H" is dropped, the last six
// characters are the low 24 bits, the rest (a signed 32-bit reading) the high part.
double hexToDouble(std::u16string_view text);

// The inverse: high part above 24 bits, then six digits of the low part, left-padded with "0" to
// at least minLength characters.
std::u16string doubleToHex(double value, int minLength);

} // namespace velkor6::values
