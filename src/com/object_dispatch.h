// IDispatch over a library object that has no member table (a Collection, say): names get
// numbers as clients ask for them, and each call goes to Object::call by name.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "velkor6/variant.h"

namespace velkor6::com {

// A new IDispatch with one reference, which the caller owns.
IDispatch* createObjectDispatch(ObjectRef object);

} // namespace velkor6::com
