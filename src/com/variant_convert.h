// Automation VARIANTs and the library's Variant.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "velkor6/variant.h"

namespace velkor6::com {

// The value of a VARIANT, following a reference. Arrays of any element type and lower bounds
// keep their element type; types the library has no counterpart for (VT_I8, VT_UI4, ...) become
// Long when they fit and Double otherwise. Raises error 13 for what cannot be converted.
Variant fromVariant(const VARIANT& v);

// Fills an empty VARIANT, which the caller then owns. Arrays always become SAFEARRAYs of
// VARIANT, as script clients can index only those.
void toVariant(const Variant& value, VARIANT& out);

// Stores a value where a VT_BYREF VARIANT points, converted to the referenced type. Returns
// the conversion's failure (DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW) and leaves the target as it
// was then.
HRESULT writeByRef(const Variant& value, const VARIANT& target);

} // namespace velkor6::com
