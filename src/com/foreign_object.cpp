#include "com/foreign_object.h"

#include "com/error_info.h"
#include "com/variant_convert.h"
#include "velkor6/vb_error.h"

#include <string>
#include <vector>

namespace velkor6::com {

std::u16string ForeignObject::typeName() const {
    ComPtr<ITypeInfo> info;
    UINT count = 0;
    if (SUCCEEDED(dispatch_->GetTypeInfoCount(&count)) && count > 0 &&
        SUCCEEDED(dispatch_->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put())) && info) {
        Bstr name;
        if (SUCCEEDED(
                info->GetDocumentation(MEMBERID_NIL, name.put(), nullptr, nullptr, nullptr)) &&
            name.get() != nullptr) {
            std::u16string text = fromBstr(name.get());
            if (text.size() > 1 && text.front() == u'_')
                text.erase(0, 1);
            return text;
        }
    }
    return u"Object";
}

Variant ForeignObject::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    DISPID member = DISPID_VALUE;
    if (!name.empty()) {
        std::u16string text(name);
        auto* names = reinterpret_cast<LPOLESTR>(text.data());
        if (FAILED(dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member)))
            throw VbError(vberr::noSuchMember);
    }

    // rgvarg holds the arguments last to first. Plain arguments go as references to VARIANTs
    // of their own, as VB passes variables; an assigned value goes by value.
    const bool assignment = kind == CallKind::PropertyLet;
    const std::size_t count = args.size();
    std::vector<ScopedVariant> values(count);
    std::vector<VARIANT> slots(count);
    for (std::size_t i = 0; i < count; ++i) {
        toVariant(args[i], *values[i].get());
        VARIANT& slot = slots[count - 1 - i];
        VariantInit(&slot);
        if (assignment && i + 1 == count) {
            slot = *values[i].get();
        } else {
            V_VT(&slot) = VT_BYREF | VT_VARIANT;
            V_VARIANTREF(&slot) = values[i].get();
        }
    }
    DISPID putId = DISPID_PROPERTYPUT;
    DISPPARAMS params{};
    params.cArgs = static_cast<UINT>(count);
    params.rgvarg = count > 0 ? slots.data() : nullptr;
    WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    if (assignment) {
        if (count == 0)
            throw VbError(vberr::argumentNotOptional);
        params.cNamedArgs = 1;
        params.rgdispidNamedArgs = &putId;
        flags = args[count - 1].isObject() ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    }

    ScopedVariant result;
    EXCEPINFO info{};
    UINT argError = 0;
    const HRESULT hr = dispatch_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &params,
                                         result.get(), &info, &argError);
    if (FAILED(hr))
        throw errorFromInvoke(hr, info);

    for (std::size_t i = 0; i < count; ++i) {
        if (assignment && i + 1 == count)
            continue;
        Variant after = fromVariant(*values[i].get());
        if (!(after == args[i]))
            args[i] = std::move(after);
    }
    return fromVariant(*result.get());
}

} // namespace velkor6::com
