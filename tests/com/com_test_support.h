// Helpers of the COM tests: building DISPPARAMS the way script clients do.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "com/com_ptr.h"

#include <string_view>
#include <utility>
#include <vector>

namespace velkor6::com::test {

inline VARIANT bstrArg(std::u16string_view s) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_BSTR;
    V_BSTR(&v) = allocBstr(s);
    return v;
}

inline VARIANT i2Arg(short n) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_I2;
    V_I2(&v) = n;
    return v;
}

inline VARIANT i4Arg(LONG n) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_I4;
    V_I4(&v) = n;
    return v;
}

inline VARIANT missingArg() {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_ERROR;
    V_ERROR(&v) = DISP_E_PARAMNOTFOUND;
    return v;
}

inline VARIANT refArg(VARIANT& target) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&v) = &target;
    return v;
}

// The arguments of one call in source order; rgvarg gets them last to first, named ones
// (given with their DISPIDs) ahead of the positional ones, as clients pass them.
class Call {
public:
    Call(std::vector<VARIANT> positional, std::vector<std::pair<DISPID, VARIANT>> named = {}) {
        for (const auto& [id, value] : named) {
            args_.push_back(value);
            ids_.push_back(id);
        }
        for (auto it = positional.rbegin(); it != positional.rend(); ++it)
            args_.push_back(*it);
        params_.rgvarg = args_.empty() ? nullptr : args_.data();
        params_.cArgs = static_cast<UINT>(args_.size());
        params_.rgdispidNamedArgs = ids_.empty() ? nullptr : ids_.data();
        params_.cNamedArgs = static_cast<UINT>(ids_.size());
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    // Frees what the call's own VARIANTs hold (references point elsewhere and stay).
    ~Call() {
        for (VARIANT& v : args_)
            VariantClear(&v);
    }

    DISPPARAMS* params() { return &params_; }

private:
    std::vector<VARIANT> args_;
    std::vector<DISPID> ids_;
    DISPPARAMS params_{};
};

} // namespace velkor6::com::test
