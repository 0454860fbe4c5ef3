// The class object DllGetClassObject hands out for each class.
#pragma once

// clang-format off
#include <windows.h>
#include <unknwn.h>
// clang-format on

namespace velkor6::com {

struct ClassEntry;

// A new class factory with one reference, which the caller owns.
IClassFactory* createClassFactory(const ClassEntry& entry);

} // namespace velkor6::com
