// Small questions about Variant values and arrays; none of them raises.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

namespace velkor6::values {

// Empty for Null, the value itself otherwise.
Variant notNull(const Variant& v);

// Empty, Null, "" and numbers or dates equal to 0. Booleans, Bytes, Decimals, objects, arrays and
// errors never count as empty.
bool isEmptyValue(const Variant& v);

// Some element from index 0 to the upper bound equals `value` by VB's "=" (binary text
// comparison). A comparison that fails, also one with Null, ends the search with false.
bool isInList(const Variant& value, const VariantArray& list, const Locale& loc);

// An array whose first dimension has bounds (even with no elements).
bool arrayHasData(const Variant& v);

} // namespace velkor6::values
