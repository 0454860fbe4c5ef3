// `lib` members for SQL literals and value helpers: forwards to src/values.
#include "values/checks.h"
#include "values/lists.h"
#include "values/sql.h"
#include "values/typed_conversion.h"
#include "velkor6/lib.h"

namespace velkor6 {

std::u16string lib::vkrSQLDate(const Variant& vValue, bool bMSSQLServer) {
    const Date today = values::dateOnly(module().platform().clock->now());
    return values::sqlDate(vValue, bMSSQLServer, locale(), today);
}

std::u16string lib::vkrSQLDouble(const Variant& vValue) {
    return values::sqlDouble(vValue, locale());
}

std::u16string lib::vkrSQLFilter(const VariantArray& vParams) {
    const Date today = values::dateOnly(module().platform().clock->now());
    return values::sqlFilter(vParams, locale(), today);
}

Variant lib::vkrGetNotNullValue(const Variant& vValue) {
    return values::notNull(vValue);
}

bool lib::vkrIsEmpty(const Variant& vValue) {
    return values::isEmptyValue(vValue);
}

bool lib::vkrIsInList(const Variant& vValue, const VariantArray& vList) {
    return values::isInList(vValue, vList, locale());
}

bool lib::vkrArrayHasData(const Variant& vArray) {
    return values::arrayHasData(vArray);
}

void lib::vkrBubbleSort(VariantArray& sList) {
    values::sortText(sList);
}

void lib::vkrClearCollection(ObjectRef& oCollection, bool bSetToNothing) {
    values::clearCollection(oCollection, bSetToNothing, locale());
}

} // namespace velkor6
