// The class object DllGetClassObject hands out for each class.
#pragma once

#include <windows.h>
#include <unknwn.h>

namespace velkor6::com {

struct ClassEntry;

// A new class factory with one reference, which the caller owns.
IClassFactory* createClassFactory(const ClassEntry& entry);

} // namespace velkor6::com
