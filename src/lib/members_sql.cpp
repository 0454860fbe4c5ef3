// Rows of the SQL literal and value helper members.
#include "lib/lib_members.h"

namespace velkor6::dispatch {

void addSqlMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back({u"vkrSQLDate",
                 Kind::Method,
                 {required(u"vValue", T::Variant), optional(u"bMSSQLServer", T::Boolean, false)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrSQLDate(a[0], a.b(1)); },
                 u"Date literal: #yyyy/mm/dd# (with hh:nn:ss when there is a time part), or for "
                 u"SQL Server CONVERT(DATETIME, 'yyyy-mm-dd hh:nn:ss', 102).",
                 u"The desktop form raises the conversion error for a value that is no number or "
                 u"date (13, or 94 for Null); the SQL Server form writes empty quotes for Null."});
    t.push_back({u"vkrSQLDouble",
                 Kind::Method,
                 {required(u"vValue", T::Variant)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrSQLDouble(a[0]); },
                 u"Number literal with \".\" as decimal mark in any locale; Null, Empty and \"\" "
                 u"give \"0\".",
                 u""});
    t.push_back({u"vkrSQLFilter",
                 Kind::Method,
                 {byRef(u"vParams", T::Array | T::Variant)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrSQLFilter(a[0].array()); },
                 u"field=literal AND field=literal ... from an array of field/value pairs.",
                 u"Dates become desktop date literals, text is put in double quotes without "
                 u"escaping (pass trusted text only), Booleans TRUE or FALSE, anything else a "
                 u"number literal. Fewer than two elements give \"\"; an odd count raises error "
                 u"9."});
    t.push_back({u"vkrGetNotNullValue",
                 Kind::Method,
                 {required(u"vValue", T::Variant)},
                 T::Variant,
                 [](lib& l, Args& a) -> Variant { return l.vkrGetNotNullValue(a[0]); },
                 u"Empty for Null, the value unchanged otherwise.",
                 u""});
    t.push_back({u"vkrIsEmpty",
                 Kind::Method,
                 {required(u"vValue", T::Variant)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrIsEmpty(a[0]); },
                 u"True for Empty, Null, \"\" and numbers or dates equal to 0; False for Booleans, "
                 u"Bytes, Decimals, objects and arrays.",
                 u""});
    t.push_back({u"vkrIsInList",
                 Kind::Method,
                 {required(u"vValue", T::Variant), byRef(u"vList", T::Array | T::Variant)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrIsInList(a[0], a[1].array()); },
                 u"True when an element of vList from index 0 equals vValue (text compared "
                 u"case-sensitively).",
                 u"A comparison that fails, also one involving Null, gives False."});
    t.push_back({u"vkrArrayHasData",
                 Kind::Method,
                 {byRef(u"vArray", T::Variant)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrArrayHasData(a[0]); },
                 u"True for an array whose dimensions are set, even with no elements.",
                 u""});
    t.push_back({u"vkrBubbleSort",
                 Kind::Method,
                 {byRef(u"sList", T::Array | T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrBubbleSort(a[0].array());
                     return Variant();
                 },
                 u"Sorts the strings in place, ascending, case-insensitively.",
                 u"The sort is stable: strings that compare equal keep their order."});
    t.push_back({u"vkrClearCollection",
                 Kind::Method,
                 {byRef(u"oCollection", T::Object), optional(u"bSetToNothing", T::Boolean, false)},
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
