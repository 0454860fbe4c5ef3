#include "core/text.h"
#include "values/lists.h"

#include <algorithm>

namespace velkor6::values {

void sortText(VariantArray& list) {
    if (list.bounds.size() != 1)
        return;
    if (!std::all_of(list.items.begin(), list.items.end(),
                     [](const Variant& v) { return v.isString(); }))
        return;
    std::stable_sort(list.items.begin(), list.items.end(), [](const Variant& a, const Variant& b) {
        return compareStrings(a.string(), b.string(), Compare::Text) < 0;
    });
}

} // namespace velkor6::values
