// VB's comparison of two Variants.
#include "core/convert.h"
#include "core/decimal_digits.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6 {
namespace {

// A number in the widest form that compares it exactly: whole numbers, Boolean, Empty and
// Currency as integers scaled by 10,000; Single, Double and Date as doubles; Decimal as digits.
struct Comparable {
    enum class Kind { Scaled, Real, Decimal };
    Kind kind = Kind::Scaled;
    std::int64_t scaled = 0;
    double real = 0;
    Decimal decimal;
};

Comparable comparableOf(const Variant& v) {
    Comparable c;
    switch (v.type()) {
    case VarType::Integer:
        c.scaled = v.integer() * Currency::scale;
        break;
    case VarType::Long:
        c.scaled = v.longValue() * Currency::scale;
        break;
    case VarType::Byte:
        c.scaled = v.byte() * Currency::scale;
        break;
    case VarType::Boolean:
        c.scaled = v.boolean() ? -Currency::scale : 0;
        break;
    case VarType::Currency:
        c.scaled = v.currency().scaled;
        break;
    case VarType::Single:
        c.kind = Comparable::Kind::Real;
        c.real = v.single();
        break;
    case VarType::Double:
        c.kind = Comparable::Kind::Real;
        c.real = v.doubleValue();
        break;
    case VarType::Date:
        c.kind = Comparable::Kind::Real;
        c.real = v.date().serial;
        break;
    case VarType::Decimal:
        c.kind = Comparable::Kind::Decimal;
        c.decimal = v.decimal();
        break;
    default:
        break; // Empty is zero
    }
    return c;
}

template <class T>
int order(T a, T b) {
    return a < b ? -1 : (b < a ? 1 : 0);
}

double realOf(const Comparable& c) {
    switch (c.kind) {
    case Comparable::Kind::Scaled:
        return currencyToDouble(Currency{c.scaled});
    case Comparable::Kind::Real:
        return c.real;
    case Comparable::Kind::Decimal:
        break;
    }
    return decimalToDouble(c.decimal);
}

// Against a Decimal the other side becomes a Decimal too, a double with its 15 digits.
DecimalDigits digitsOf(const Comparable& c) {
    switch (c.kind) {
    case Comparable::Kind::Scaled:
        return digitsFromInteger(c.scaled, -4);
    case Comparable::Kind::Real:
        return digitsFromDouble(c.real, 15);
    case Comparable::Kind::Decimal:
        break;
    }
    return digitsFromDecimal(c.decimal);
}

int compareNumbers(const Variant& a, const Variant& b) {
    const Comparable x = comparableOf(a);
    const Comparable y = comparableOf(b);
    using K = Comparable::Kind;
    if (x.kind == K::Scaled && y.kind == K::Scaled)
        return order(x.scaled, y.scaled);
    const bool decimal = x.kind == K::Decimal || y.kind == K::Decimal;
    const bool finite = std::isfinite(realOf(x)) && std::isfinite(realOf(y));
    if (decimal && finite)
        return compareDigits(digitsOf(x), digitsOf(y));
    return order(realOf(x), realOf(y));
}

bool comparable(const Variant& v) {
    return !v.isArray() && !v.isObject() && v.type() != VarType::Error;
}

} // namespace

std::optional<int> compareVariants(const Variant& a, const Variant& b, Compare mode,
                                   const Locale&) {
    if (!comparable(a) || !comparable(b))
        throw VbError(vberr::typeMismatch);
    if (a.isNull() || b.isNull())
        return std::nullopt;
    if (a.isString() && b.isString())
        return compareStrings(a.string(), b.string(), mode);
    if (a.isString() || b.isString()) {
        // Empty meets text as ""; any number is less than any text.
        if (a.isEmpty() || b.isEmpty())
            return compareStrings(a.isString() ? a.string() : std::u16string_view(),
                                  b.isString() ? b.string() : std::u16string_view(), mode);
        return a.isString() ? 1 : -1;
    }
    return compareNumbers(a, b);
}

} // namespace velkor6
