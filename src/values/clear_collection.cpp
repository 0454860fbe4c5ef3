#include "core/collection.h"
#include "core/convert.h"
#include "values/lists.h"
#include "velkor6/vb_error.h"

namespace velkor6::values {

void clearCollection(ObjectRef& collection, bool setToNothing, const Locale& loc) {
    try {
        if (auto* own = dynamic_cast<Collection*>(collection.get())) {
            own->clear();
        } else if (collection) {
            // From the last item back: one pass whatever the container, and no endless loop
            // should its Remove not shrink it.
            const std::int32_t count =
                toLong(collection->call(u"Count", CallKind::PropertyGet, {}), loc);
            for (std::int32_t i = count; i >= 1; --i) {
                Variant index(i);
                collection->call(u"Remove", CallKind::Method, std::span<Variant>(&index, 1));
            }
        }
    } catch (const VbError&) {
    }
    if (setToNothing)
        collection.reset();
}

} // namespace velkor6::values
