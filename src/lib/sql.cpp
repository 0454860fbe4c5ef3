// SQL literals and value helpers: the `lib` members and their rows in the member table.
#include "values/sql.h"

#include "lib/lib_members.h"
#include "values/checks.h"
#include "values/lists.h"
#include "values/typed_conversion.h"

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

namespace velkor6::dispatch {

void addSqlMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back({23,
                 u"vkrSQLDate",
                 CallKind::Method,
                 {required(u"vValue", T::Variant), optional(u"bMSSQLServer", T::Boolean, false)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrSQLDate(a[0], a.b(1)); },
                 u"Date literal: #yyyy/mm/dd# (with hh:nn:ss when there is a time part), or for "
                 u"SQL Server CONVERT(DATETIME, 'yyyy-mm-dd hh:nn:ss', 102).",
                 u"The desktop form raises the conversion error for a value that is no number or "
                 u"date (13, or 94 for Null); the SQL Server form writes empty quotes for Null."});
    t.push_back({24,
                 u"vkrSQLDouble",
                 CallKind::Method,
                 {required(u"vValue", T::Variant)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrSQLDouble(a[0]); },
                 u"Number literal with \".\" as decimal mark in any locale; Null, Empty and \"\" "
                 u"give \"0\".",
                 u""});
    t.push_back({25,
                 u"vkrSQLFilter",
                 CallKind::Method,
                 {byRef(u"vParams", T::Array | T::Variant)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrSQLFilter(a[0].array()); },
                 u"field=literal AND field=literal ... from an array of field/value pairs.",
                 u"Dates become desktop date literals, text is put in double quotes without "
                 u"escaping (pass trusted text only), Booleans TRUE or FALSE, anything else a "
                 u"number literal. Fewer than two elements give \"\"; an odd count raises error "
                 u"9."});
    t.push_back({26,
                 u"vkrGetNotNullValue",
                 CallKind::Method,
                 {required(u"vValue", T::Variant)},
                 T::Variant,
                 [](lib& l, Args& a) -> Variant { return l.vkrGetNotNullValue(a[0]); },
                 u"Empty for Null, the value unchanged otherwise.",
                 u""});
    t.push_back({27,
                 u"vkrIsEmpty",
                 CallKind::Method,
                 {required(u"vValue", T::Variant)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrIsEmpty(a[0]); },
                 u"True for Empty, Null, \"\" and numbers or dates equal to 0; False for Booleans, "
                 u"Bytes, Decimals, objects and arrays.",
                 u""});
    t.push_back({28,
                 u"vkrIsInList",
                 CallKind::Method,
                 {required(u"vValue", T::Variant), byRef(u"vList", T::Array | T::Variant)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrIsInList(a[0], a[1].array()); },
                 u"True when an element of vList from index 0 equals vValue (text compared "
                 u"case-sensitively).",
                 u"A comparison that fails, also one involving Null, gives False."});
    t.push_back({29,
                 u"vkrArrayHasData",
                 CallKind::Method,
                 {byRef(u"vArray", T::Variant)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrArrayHasData(a[0]); },
                 u"True for an array whose dimensions are set, even with no elements.",
                 u""});
    t.push_back({30,
                 u"vkrBubbleSort",
                 CallKind::Method,
                 {output(u"sList", T::Array | T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrBubbleSort(a[0].array());
                     return Variant();
                 },
                 u"Sorts the strings in place, ascending, case-insensitively.",
                 u"The sort is stable: strings that compare equal keep their order."});
    t.push_back({31,
                 u"vkrClearCollection",
                 CallKind::Method,
                 {output(u"oCollection", T::Object), optional(u"bSetToNothing", T::Boolean, false)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     ObjectRef collection = a[0].object();
                     l.vkrClearCollection(collection, a.b(1));
                     a[0] = Variant(std::move(collection));
                     return Variant();
                 },
                 u"Removes every item of the collection; with bSetToNothing the caller's "
                 u"reference becomes Nothing.",
                 u""});
}

} // namespace velkor6::dispatch
