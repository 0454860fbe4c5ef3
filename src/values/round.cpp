#include "core/convert.h"
#include "core/format.h"
#include "values/numbers.h"
#include "velkor6/vb_error.h"

#include <string>

namespace velkor6::values {

Variant roundValue(const Variant& v, int places, const Locale& loc) {
    if (places < 0)
        return v;
    // Format rounds half away from zero on the decimal digits, unlike the host's conversions.
    std::u16string mask = u"0";
    if (places > 0)
        mask = u"0." + std::u16string(static_cast<std::size_t>(places), u'0');
    try {
        switch (v.type()) {
        case VarType::Integer:
            return Variant(toInteger(Variant(format(v, u"0", loc)), loc));
        case VarType::Long:
            return Variant(toLong(Variant(format(v, u"0", loc)), loc));
        case VarType::Single:
            return Variant(toSingle(Variant(format(v, mask, loc)), loc));
        case VarType::Double:
            return Variant(toDouble(Variant(format(v, mask, loc)), loc));
        case VarType::Currency:
            return Variant(toCurrency(Variant(format(v, mask, loc)), loc));
        default:
            return v;
        }
    } catch (const VbError&) {
        return v;
    }
}

} // namespace velkor6::values
