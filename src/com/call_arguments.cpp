#include "com/call_arguments.h"

#include "com/variant_convert.h"
#include "velkor6/vb_error.h"

namespace velkor6::com {

HRESULT CallArguments::read(const DISPPARAMS& params, std::span<const dispatch::Param> formal,
                            UINT* argError) {
    const UINT count = params.cArgs;
    const UINT named = params.cNamedArgs;
    if (named > count || (count > 0 && params.rgvarg == nullptr))
        return E_INVALIDARG;
    values_.clear();
    arguments_.clear();
    sources_.clear();
    values_.reserve(count);
    arguments_.reserve(count);
    sources_.reserve(count);

    const auto add = [&](const VARIANT& v, std::u16string name) {
        values_.push_back(fromVariant(v));
        sources_.push_back(&v);
        arguments_.push_back({&values_.back(), std::move(name)});
    };
    for (UINT k = 0; k < count - named; ++k)
        add(params.rgvarg[count - 1 - k], {});
    for (UINT n = 0; n < named; ++n) {
        const DISPID id = params.rgdispidNamedArgs[n];
        if (id == DISPID_PROPERTYPUT && !formal.empty()) {
            add(params.rgvarg[n], formal.back().name);
        } else if (id >= 0 && static_cast<std::size_t>(id) < formal.size()) {
            add(params.rgvarg[n], formal[static_cast<std::size_t>(id)].name);
        } else {
            if (argError != nullptr)
                *argError = n;
            return DISP_E_PARAMNOTFOUND;
        }
    }
    return S_OK;
}

void CallArguments::writeBack(std::span<const dispatch::Param> formal,
                              const dispatch::Binding& binding) {
    for (std::size_t j = 0; j < formal.size(); ++j) {
        const Variant* source = binding.sources[j];
        if (!formal[j].byRef || source == nullptr)
            continue;
        const auto k = static_cast<std::size_t>(source - values_.data());
        if (k < sources_.size() && FAILED(writeByRef(*source, *sources_[k])))
            throw VbError(vberr::typeMismatch);
    }
}

void CallArguments::writeBackChanged(const std::vector<Variant>& before) {
    for (std::size_t k = 0; k < values_.size(); ++k) {
        if (values_[k] == before[k])
            continue;
        if (FAILED(writeByRef(values_[k], *sources_[k])))
            throw VbError(vberr::typeMismatch);
    }
}

} // namespace velkor6::com
