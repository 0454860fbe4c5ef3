// The module (DLL or program) this code was linked into: window classes belong to it.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace velkor6::ui::win32 {

HINSTANCE moduleInstance();

} // namespace velkor6::ui::win32
