// The arguments of one IDispatch::Invoke as the dispatch layer takes them, and the ByRef values
// written back into the caller's VARIANTs afterwards.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "lib/dispatch.h"
#include "velkor6/variant.h"

#include <span>
#include <vector>

namespace velkor6::com {

class CallArguments {
public:
    // Reads the DISPPARAMS of a call to a member with these parameters: positional arguments
    // first (rgvarg holds them last to first), then named ones by parameter number, the value
    // of a property assignment as the last parameter. An argument that is VT_ERROR with
    // DISP_E_PARAMNOTFOUND is omitted. Fails with DISP_E_PARAMNOTFOUND for an unknown named
    // parameter number, with *argError its position in rgvarg.
    HRESULT read(const DISPPARAMS& params, std::span<const dispatch::Param> formal, UINT* argError);

    std::span<dispatch::Argument> arguments() { return arguments_; }
    std::span<Variant> values() { return values_; }

    // Stores each ByRef parameter's final value where the caller passed a reference. Raises
    // error 13 when a typed reference cannot take the value.
    void writeBack(std::span<const dispatch::Param> formal, const dispatch::Binding& binding);
    // The same for calls without parameter information (the library's other objects): every
    // argument passed by reference whose value changed.
    void writeBackChanged(const std::vector<Variant>& before);

private:
    std::vector<Variant> values_;
    std::vector<dispatch::Argument> arguments_;
    std::vector<const VARIANT*> sources_;
};

} // namespace velkor6::com
