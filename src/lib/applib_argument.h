// The application context that lib members such as vkrRes and vkrZoomTextBox take as an argument.
#pragma once

#include "lib/dispatch_object.h"
#include "velkor6/applib.h"
#include "velkor6/vb_error.h"

namespace velkor6::dispatch {

// Nothing raises error 91, an object of another class error 13.
inline applib& applibArgument(const Variant& v) {
    const ObjectRef& object = v.object();
    if (!object)
        throw VbError(vberr::objectNotSet);
    const auto* context = dynamic_cast<const TableObject<applib>*>(object.get());
    if (context == nullptr)
        throw VbError(vberr::typeMismatch);
    return *context->target();
}

} // namespace velkor6::dispatch
