// Errors raised inside a call, reported to automation clients.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "velkor6/vb_error.h"

#include <cstdint>

namespace velkor6::com {

// The SCODE a client sees for an error number: the library's own numbers are HRESULTs already,
// VB run-time numbers n become 0x800A0000 + n.
HRESULT scodeOf(std::int32_t number);

// Call inside a catch block: fills the EXCEPINFO (number, source, description) from the
// exception being handled and returns DISP_E_EXCEPTION, or the SCODE when there is no
// EXCEPINFO to fill.
HRESULT reportCurrentException(EXCEPINFO* info);

// The VbError a failed IDispatch::Invoke of the caller's object stands for.
VbError errorFromInvoke(HRESULT hr, EXCEPINFO& info);

} // namespace velkor6::com
