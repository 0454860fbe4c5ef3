#include "values/sql.h"

#include "core/convert.h"
#include "core/format.h"
#include "values/typed_conversion.h"
#include "velkor6/vb_error.h"

#include <algorithm>

namespace velkor6::values {
namespace {

// Backslashes keep "-", "/", ":" and "#" literal: SQL wants them whatever the locale's separators.
constexpr std::u16string_view serverMask = u"yyyy\\-mm\\-dd\\ hh\\:nn\\:ss";
constexpr std::u16string_view desktopDateTimeMask = u"\\#yyyy\\/mm\\/dd hh\\:nn\\:ss\\#";
constexpr std::u16string_view desktopDateMask = u"\\#yyyy\\/mm\\/dd\\#";

const Variant& element(const VariantArray& a, std::int64_t index) {
    if (a.bounds.size() != 1 || index < a.bounds[0].lower || index > a.bounds[0].upper())
        throw VbError(vberr::subscriptOutOfRange);
    return a.items[static_cast<std::size_t>(index - a.bounds[0].lower)];
}

// The value read as a number, or as a date when it is text that is no number: date text is as
// good a date literal as a Date value.
double serialOf(const Variant& v, const Locale& loc) {
    if (v.isString() && !parseNumber(v.string(), loc))
        return toDate(v, loc).serial;
    return toDouble(v, loc);
}

// What "&" makes of a value: Null adds nothing.
std::u16string concatText(const Variant& v, const Locale& loc) {
    return v.isNull() ? std::u16string() : toString(v, loc);
}

std::u16string literal(const Variant& v, const Locale& loc, Date today) {
    switch (v.type()) {
    case VarType::Date:
        return sqlDate(v, false, loc, today);
    case VarType::String:
        return u"\"" + v.string() + u"\"";
    case VarType::Boolean:
        return v.boolean() ? u"TRUE" : u"FALSE";
    default:
        return sqlDouble(v, loc);
    }
}

} // namespace

std::u16string sqlDate(const Variant& v, bool msSqlServer, const Locale& loc, Date today) {
    if (msSqlServer)
        return u"CONVERT(DATETIME, '" + format(v, serverMask, loc) + u"', 102)";
    const double serial = serialOf(v, loc);
    const bool hasTime = serial != static_cast<double>(toLong(Variant(serial), loc));
    return format(typedConversion(7, v, loc, today),
                  hasTime ? desktopDateTimeMask : desktopDateMask, loc);
}

std::u16string sqlDouble(const Variant& v, const Locale& loc) {
    try {
        std::u16string text = toString(typedConversion(5, v, loc, Date{}), loc);
        std::replace(text.begin(), text.end(), u',', u'.');
        return text;
    } catch (const VbError&) {
        return {};
    }
}

std::u16string sqlFilter(const VariantArray& params, const Locale& loc, Date today) {
    if (params.bounds.empty() || params.bounds[0].upper() < 1)
        return {};
    std::u16string result;
    const std::int64_t upper = params.bounds[0].upper();
    for (std::int64_t i = params.bounds[0].lower; i <= upper; i += 2) {
        if (!result.empty())
            result += u" AND ";
        result += concatText(element(params, i), loc);
        result += u'=';
        result += literal(element(params, i + 1), loc, today);
    }
    return result;
}

} // namespace velkor6::values
