#include "values/checks.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

namespace velkor6::values {

Variant notNull(const Variant& v) {
    return v.isNull() ? Variant() : v;
}

bool isEmptyValue(const Variant& v) {
    switch (v.type()) {
    case VarType::Empty:
    case VarType::Null:
        return true;
    case VarType::Integer:
        return v.integer() == 0;
    case VarType::Long:
        return v.longValue() == 0;
    case VarType::Single:
        return v.single() == 0;
    case VarType::Double:
        return v.doubleValue() == 0;
    case VarType::Currency:
        return v.currency().scaled == 0;
    case VarType::Date:
        return v.date().serial == 0;
    case VarType::String:
        return v.string().empty();
    default:
        return false;
    }
}

bool isInList(const Variant& value, const VariantArray& list, const Locale& loc) {
    if (list.bounds.empty())
        return false;
    const ArrayBound& b = list.bounds[0];
    for (std::int64_t i = 0; i <= b.upper(); ++i) {
        // The search starts at index 0 whatever the lower bound: below it is a subscript error.
        if (list.bounds.size() != 1 || i < b.lower)
            return false;
        try {
            const auto order = compareVariants(list.items[static_cast<std::size_t>(i - b.lower)],
                                               value, Compare::Binary, loc);
            if (!order)
                return false;
            if (*order == 0)
                return true;
        } catch (const VbError&) {
            return false;
        }
    }
    return false;
}

bool arrayHasData(const Variant& v) {
    return v.isArray() && !v.array().bounds.empty();
}

} // namespace velkor6::values
