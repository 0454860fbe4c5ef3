// The type description an object reports through IDispatch::GetTypeInfo.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include <string_view>

namespace velkor6::com {

// The class's dispatch interface under the name of the class: a script's TypeName shows the
// description's name, and not every script engine drops the "_" of a default interface ("_lib"
// must read "lib"). Everything else is the interface's own description. Returns a new
// reference; nullptr when interfaceInfo is nullptr.
ITypeInfo* classTypeInfo(ITypeInfo* interfaceInfo, std::u16string_view className);

} // namespace velkor6::com
