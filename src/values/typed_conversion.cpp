#include "values/typed_conversion.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6::values {
namespace {

bool isBlank(const Variant& v) {
    return v.isEmpty() || v.isNull() || (v.isString() && v.string().empty());
}

Variant defaultOf(int typeCode, Date today) {
    switch (typeCode) {
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 14:
    case 17:
        // Every numeric default is tagged Integer, whichever type was asked.
        return Variant(std::int16_t{0});
    case 7:
        return Variant(today);
    case 8:
        return Variant(u"");
    case 11:
        return Variant(false);
    default:
        return Variant::null();
    }
}

bool isConvertible(int typeCode) {
    switch (typeCode) {
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
    case 11:
    case 14:
    case 17:
        return true;
    default:
        return false;
    }
}

} // namespace

Variant typedConversion(int typeCode, const Variant& v, const Locale& loc, Date today) {
    if (isBlank(v))
        return defaultOf(typeCode, today);
    if (!isConvertible(typeCode))
        return v;
    try {
        return convertTo(v, static_cast<VarType>(typeCode), loc);
    } catch (const VbError&) {
        return v;
    }
}

Date dateOnly(Date moment) {
    return Date{std::trunc(moment.serial)};
}

} // namespace velkor6::values
