// Numbers as CStr writes them: no grouping, the locale's decimal separator, and the exponent
// form of C's %G ("1E+20", "1.5E-07") where the digits would not fit.
#include "core/convert.h"
#include "core/decimal_digits.h"

#include <charconv>
#include <cmath>

namespace velkor6 {
namespace {

template <class Float>
std::u16string generalText(Float f, int significant, const Locale& loc) {
    if (std::isnan(f))
        return std::signbit(f) ? u"-1.#IND" : u"1.#QNAN";
    if (std::isinf(f))
        return f > 0 ? u"1.#INF" : u"-1.#INF";
    if (f == 0)
        return u"0"; // also for -0, which VB never shows
    char buf[48];
    const auto end =
        std::to_chars(buf, buf + sizeof buf, f, std::chars_format::general, significant).ptr;
    std::u16string s(static_cast<std::size_t>(end - buf), u'0');
    for (std::size_t k = 0; k < s.size(); ++k) {
        const char c = buf[k];
        s[k] = c == '.' ? loc.decimal : c == 'e' ? u'E' : static_cast<char16_t>(c);
    }
    return s;
}

} // namespace

std::u16string doubleToText(double d, const Locale& loc) {
    return generalText(d, 15, loc);
}

std::u16string singleToText(float f, const Locale& loc) {
    return generalText(f, 7, loc);
}

std::u16string currencyToText(Currency c, const Locale& loc) {
    return digitsToText(digitsFromInteger(c.scaled, -4), loc.decimal);
}

std::u16string decimalToText(const Decimal& d, const Locale& loc) {
    return digitsToText(digitsFromDecimal(d), loc.decimal);
}

} // namespace velkor6
