#include "core/convert.h"

#include "core/date.h"
#include "core/decimal_digits.h"
#include "core/format.h"
#include "velkor6/vb_error.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace velkor6 {
namespace {

[[noreturn]] void fail(std::int32_t number) {
    throw VbError(number);
}

// A Variant's value in the form that converts it exactly: whole numbers (also Boolean and
// Empty), Currency's scaled integer, binary floating point (also Date), Decimal, or the digits
// of a numeric text.
struct Number {
    enum class Kind { Whole, Scaled, Real, Decimal, Digits };
    Kind kind = Kind::Whole;
    std::int64_t whole = 0;
    double real = 0;
    int realDigits = 15; // significant digits of a Real in its text (7 for Single)
    Decimal decimal;
    DecimalDigits digits;
};

// Raises what VB raises for values that are no number: 94 for Null, 91 for Nothing, 13 else.
[[noreturn]] void failNotNumber(const Variant& v) {
    if (v.isNull())
        fail(vberr::invalidUseOfNull);
    if (v.isObject() && !v.object())
        fail(vberr::objectNotSet);
    fail(vberr::typeMismatch);
}

DecimalDigits parseOrFail(std::u16string_view text, const Locale& loc) {
    DecimalDigits d;
    switch (parseDigits(text, loc, d)) {
    case NumberParse::Ok:
        return d;
    case NumberParse::Overflow:
        fail(vberr::overflow);
    case NumberParse::Invalid:
        break;
    }
    fail(vberr::typeMismatch);
}

Number numberOf(const Variant& v, const Locale& loc) {
    Number n;
    switch (v.type()) {
    case VarType::Empty:
        break;
    case VarType::Integer:
        n.whole = v.integer();
        break;
    case VarType::Long:
        n.whole = v.longValue();
        break;
    case VarType::Byte:
        n.whole = v.byte();
        break;
    case VarType::Boolean:
        n.whole = v.boolean() ? -1 : 0;
        break;
    case VarType::Currency:
        n.kind = Number::Kind::Scaled;
        n.whole = v.currency().scaled;
        break;
    case VarType::Single:
        n.kind = Number::Kind::Real;
        n.real = v.single();
        n.realDigits = 7;
        break;
    case VarType::Double:
        n.kind = Number::Kind::Real;
        n.real = v.doubleValue();
        break;
    case VarType::Date:
        n.kind = Number::Kind::Real;
        n.real = v.date().serial;
        break;
    case VarType::Decimal:
        n.kind = Number::Kind::Decimal;
        n.decimal = v.decimal();
        break;
    case VarType::String:
        n.kind = Number::Kind::Digits;
        n.digits = parseOrFail(v.string(), loc);
        break;
    default:
        failNotNumber(v);
    }
    return n;
}

std::int64_t roundedWhole(const Number& n, std::int64_t min, std::int64_t max) {
    std::optional<std::int64_t> r;
    switch (n.kind) {
    case Number::Kind::Whole:
        r = n.whole;
        break;
    case Number::Kind::Scaled:
        r = digitsToScaledInteger(digitsFromInteger(n.whole, -4), 0);
        break;
    case Number::Kind::Real: {
        const double d = roundHalfEven(n.real);
        // Written so that NaN fails too.
        if (d >= static_cast<double>(min) && d <= static_cast<double>(max))
            r = static_cast<std::int64_t>(d);
        break;
    }
    case Number::Kind::Decimal:
        r = digitsToScaledInteger(digitsFromDecimal(n.decimal), 0);
        break;
    case Number::Kind::Digits:
        r = digitsToScaledInteger(n.digits, 0);
        break;
    }
    if (!r || *r < min || *r > max)
        fail(vberr::overflow);
    return *r;
}

double realOf(const Number& n) {
    switch (n.kind) {
    case Number::Kind::Whole:
        return static_cast<double>(n.whole);
    case Number::Kind::Scaled:
        return currencyToDouble(Currency{n.whole});
    case Number::Kind::Real:
        return n.real;
    case Number::Kind::Decimal:
        return decimalToDouble(n.decimal);
    case Number::Kind::Digits:
        break;
    }
    const std::optional<double> d = digitsToDouble(n.digits);
    if (!d)
        fail(vberr::overflow);
    return *d;
}

Date dateFromSerial(double d) {
    if (!(d > minDateSerial - 1 && d < maxDateSerial))
        fail(vberr::overflow);
    return Date{d};
}

bool isTrueWord(std::u16string_view s, std::u16string_view word) {
    return textEqual(s, word, Compare::Text);
}

std::u16string integerText(std::int64_t v) {
    char buf[24];
    const auto end = std::to_chars(buf, buf + sizeof buf, v).ptr;
    return std::u16string(buf, end);
}

} // namespace

std::u16string_view typeBaseName(VarType t) {
    switch (t) {
    case VarType::Empty:
        return u"Empty";
    case VarType::Null:
        return u"Null";
    case VarType::Integer:
        return u"Integer";
    case VarType::Long:
        return u"Long";
    case VarType::Single:
        return u"Single";
    case VarType::Double:
        return u"Double";
    case VarType::Currency:
        return u"Currency";
    case VarType::Date:
        return u"Date";
    case VarType::String:
        return u"String";
    case VarType::Object:
        return u"Object";
    case VarType::Error:
        return u"Error";
    case VarType::Boolean:
        return u"Boolean";
    case VarType::Variant:
        return u"Variant";
    case VarType::Decimal:
        return u"Decimal";
    case VarType::Byte:
        return u"Byte";
    default:
        return u"Unknown";
    }
}

double roundHalfEven(double d) {
    const double below = std::floor(d);
    const double rest = d - below; // exact for every double
    if (rest > 0.5)
        return below + 1;
    if (rest < 0.5)
        return below;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t toInteger(const Variant& v, const Locale& loc) {
    if (v.type() == VarType::Integer)
        return v.integer();
    return static_cast<std::int16_t>(roundedWhole(numberOf(v, loc), -32768, 32767));
}

std::int32_t toLong(const Variant& v, const Locale& loc) {
    if (v.type() == VarType::Long)
        return v.longValue();
    return static_cast<std::int32_t>(roundedWhole(numberOf(v, loc),
                                                  std::numeric_limits<std::int32_t>::min(),
                                                  std::numeric_limits<std::int32_t>::max()));
}

std::uint8_t toByte(const Variant& v, const Locale& loc) {
    // True is all bits set, which a Byte holds as 255.
    if (v.type() == VarType::Boolean)
        return v.boolean() ? 255 : 0;
    return static_cast<std::uint8_t>(roundedWhole(numberOf(v, loc), 0, 255));
}

double toDouble(const Variant& v, const Locale& loc) {
    if (v.type() == VarType::Double)
        return v.doubleValue();
    return realOf(numberOf(v, loc));
}

float toSingle(const Variant& v, const Locale& loc) {
    if (v.type() == VarType::Single)
        return v.single();
    const double d = toDouble(v, loc);
    // Beyond this a double rounds to float infinity (halfway between FLT_MAX and 2^128).
    constexpr double limit = 3.4028235677973366e38;
    if (std::isnan(d) || std::fabs(d) >= limit)
        fail(vberr::overflow);
    return static_cast<float>(d);
}

Currency toCurrency(const Variant& v, const Locale& loc) {
    const Number n = numberOf(v, loc);
    std::optional<std::int64_t> scaled;
    switch (n.kind) {
    case Number::Kind::Whole:
        scaled = n.whole * Currency::scale;
        break;
    case Number::Kind::Scaled:
        scaled = n.whole;
        break;
    case Number::Kind::Real:
        return currencyFromDouble(n.real);
    case Number::Kind::Decimal:
        scaled = digitsToScaledInteger(digitsFromDecimal(n.decimal), 4);
        break;
    case Number::Kind::Digits:
        scaled = digitsToScaledInteger(n.digits, 4);
        break;
    }
    if (!scaled)
        fail(vberr::overflow);
    return Currency{*scaled};
}

Decimal toDecimal(const Variant& v, const Locale& loc) {
    const Number n = numberOf(v, loc);
    DecimalDigits digits;
    switch (n.kind) {
    case Number::Kind::Whole:
        digits = digitsFromInteger(n.whole);
        break;
    case Number::Kind::Scaled:
        digits = digitsFromInteger(n.whole, -4);
        break;
    case Number::Kind::Real:
        if (!std::isfinite(n.real))
            fail(vberr::overflow);
        digits = digitsFromDouble(n.real, n.realDigits);
        break;
    case Number::Kind::Decimal:
        return n.decimal;
    case Number::Kind::Digits:
        digits = n.digits;
        break;
    }
    const std::optional<Decimal> d = digitsToDecimal(digits);
    if (!d)
        fail(vberr::overflow);
    return *d;
}

Date toDate(const Variant& v, const Locale& loc) {
    switch (v.type()) {
    case VarType::Date:
        return v.date();
    case VarType::String:
        if (const std::optional<Date> d = parseDate(v.string(), loc))
            return *d;
        break;
    default:
        break;
    }
    return dateFromSerial(realOf(numberOf(v, loc)));
}

bool toBoolean(const Variant& v, const Locale& loc) {
    if (v.type() == VarType::Boolean)
        return v.boolean();
    if (v.isString()) {
        const std::u16string_view s = v.string();
        if (isTrueWord(s, u"True") || isTrueWord(s, u"#TRUE#"))
            return true;
        if (isTrueWord(s, u"False") || isTrueWord(s, u"#FALSE#"))
            return false;
    }
    const Number n = numberOf(v, loc);
    switch (n.kind) {
    case Number::Kind::Whole:
    case Number::Kind::Scaled:
        return n.whole != 0;
    case Number::Kind::Real:
        return n.real != 0;
    case Number::Kind::Decimal:
        return n.decimal.lo != 0 || n.decimal.hi != 0;
    case Number::Kind::Digits:
        return n.digits.count != 0;
    }
    return false;
}

std::u16string toString(const Variant& v, const Locale& loc) {
    switch (v.type()) {
    case VarType::Empty:
        return {};
    case VarType::String:
        return v.string();
    case VarType::Integer:
        return integerText(v.integer());
    case VarType::Long:
        return integerText(v.longValue());
    case VarType::Byte:
        return integerText(v.byte());
    case VarType::Boolean:
        return v.boolean() ? u"True" : u"False";
    case VarType::Single:
        return singleToText(v.single(), loc);
    case VarType::Double:
        return doubleToText(v.doubleValue(), loc);
    case VarType::Currency:
        return currencyToText(v.currency(), loc);
    case VarType::Decimal:
        return decimalToText(v.decimal(), loc);
    case VarType::Date:
        return formatGeneralDate(v.date(), loc);
    default:
        failNotNumber(v);
    }
}

Variant convertTo(const Variant& v, VarType type, const Locale& loc) {
    switch (type) {
    case VarType::Integer:
        return toInteger(v, loc);
    case VarType::Long:
        return toLong(v, loc);
    case VarType::Single:
        return toSingle(v, loc);
    case VarType::Double:
        return toDouble(v, loc);
    case VarType::Currency:
        return toCurrency(v, loc);
    case VarType::Date:
        return toDate(v, loc);
    case VarType::String:
        return toString(v, loc);
    case VarType::Boolean:
        return toBoolean(v, loc);
    case VarType::Decimal:
        return toDecimal(v, loc);
    case VarType::Byte:
        return toByte(v, loc);
    default:
        return v;
    }
}

std::optional<double> parseNumber(std::u16string_view text, const Locale& loc) {
    DecimalDigits d;
    if (parseDigits(text, loc, d) != NumberParse::Ok)
        return std::nullopt;
    return digitsToDouble(d);
}

bool isNumeric(const Variant& v, const Locale& loc) {
    switch (v.type()) {
    case VarType::Empty:
    case VarType::Boolean:
        return true;
    case VarType::String:
        return parseNumber(v.string(), loc).has_value();
    default:
        return v.isNumber();
    }
}

bool isDate(const Variant& v, const Locale& loc) {
    if (v.type() == VarType::Date)
        return true;
    return v.isString() && parseDate(v.string(), loc).has_value();
}

double decimalToDouble(const Decimal& d) {
    return *digitsToDouble(digitsFromDecimal(d));
}

Decimal decimalFromDouble(double d) {
    if (!std::isfinite(d))
        fail(vberr::overflow);
    const std::optional<Decimal> r = digitsToDecimal(digitsFromDouble(d, 15));
    if (!r)
        fail(vberr::overflow);
    return *r;
}

double currencyToDouble(Currency c) {
    return static_cast<double>(c.scaled) / static_cast<double>(Currency::scale);
}

Currency currencyFromDouble(double d) {
    const double scaled = roundHalfEven(d * static_cast<double>(Currency::scale));
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (!(scaled >= -limit && scaled < limit))
        fail(vberr::overflow);
    return Currency{static_cast<std::int64_t>(scaled)};
}

std::u16string typeName(const Variant& v) {
    if (v.isArray())
        return std::u16string(typeBaseName(v.array().element)) + u"()";
    if (v.isObject())
        return v.object() ? v.object()->typeName() : u"Nothing";
    return std::u16string(typeBaseName(v.type()));
}

} // namespace velkor6
