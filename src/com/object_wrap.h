// Objects crossing the COM boundary: the library's own objects go out as IDispatch, the caller's
// IDispatch objects come in as velkor6 Objects, and each goes back as what it was.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "velkor6/variant.h"

namespace velkor6::com {

// A new reference to an IDispatch for the object; nullptr for Nothing.
IDispatch* dispatchFor(const ObjectRef& object);
// The object an IDispatch stands for: the library's own object behind one of its wrappers, or
// the caller's object wrapped so that members can call it by name. Nothing for nullptr.
ObjectRef objectFor(IDispatch* dispatch);

// Implemented by the library's wrappers so that their objects can be told apart from the
// caller's (by QueryInterface with iidOwnObject, within this process only).
struct OwnObject : IUnknown {
    // The wrapped object, or nullptr when the wrapped target is no velkor6 Object.
    virtual ObjectRef STDMETHODCALLTYPE object() = 0;
    // Distinguishes this module's wrappers from another copy of the library in the process.
    virtual const void* STDMETHODCALLTYPE owner() = 0;
};

extern const IID iidOwnObject;
// The value owner() returns in this module.
const void* thisModuleToken();

} // namespace velkor6::com
