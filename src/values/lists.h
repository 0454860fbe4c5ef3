// Sorting string arrays and emptying collections in place.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

namespace velkor6::values {

// Stable ascending sort of a one-dimensional array of Strings by text comparison
// (case-insensitive); an array of more dimensions or holding other values stays as it is.
void sortText(VariantArray& list);

// Removes every item of a Collection, or of any object answering Count and Remove, and releases
// the reference when asked. Errors (Nothing, an object without those members) are ignored.
void clearCollection(ObjectRef& collection, bool setToNothing, const Locale& loc);

} // namespace velkor6::values
