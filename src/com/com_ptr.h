// The owners of COM references, BSTRs and VARIANTs, from the Windows platform layer.
#pragma once

#include "platform/win32/com_ptr.h"

namespace velkor6::com {

using win32::allocBstr;
using win32::Bstr;
using win32::ComPtr;
using win32::fromBstr;
using win32::ScopedVariant;

} // namespace velkor6::com
