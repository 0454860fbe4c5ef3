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

namespace {

// IDispatchEx; the import libraries do not define it.
const IID iidDispatchEx = {
    0xa6ef9860, 0xc720, 0x11d0, {0x93, 0x37, 0x00, 0xa0, 0xc9, 0x0d, 0xca, 0xa9}};

} // namespace

bool ForeignObject::memberId(std::u16string_view name, DISPID& id) const {
    // Script objects answer by IDispatchEx; some engines (Wine's VBScript classes) answer
    // only there.
    ComPtr<IDispatchEx> ex;
    if (SUCCEEDED(dispatch_->QueryInterface(iidDispatchEx, reinterpret_cast<void**>(ex.put())))) {
        Bstr text(name);
        if (SUCCEEDED(ex->GetDispID(text.get(), fdexNameCaseInsensitive, &id)))
            return true;
    }
    std::u16string text(name);
    auto* names = reinterpret_cast<LPOLESTR>(text.data());
    return SUCCEEDED(dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
}

Variant ForeignObject::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    DISPID member = DISPID_VALUE;
    if (!name.empty() && !memberId(name, member))
        throw VbError(vberr::noSuchMember);

    // rgvarg holds the arguments last to first. They go by value: objects that take their
    // arguments through a type library (MSXML's) refuse references to VARIANTs.
    const bool assignment = kind == CallKind::PropertyLet;
    const std::size_t count = args.size();
    std::vector<ScopedVariant> values(count);
    std::vector<VARIANT> slots(count);
    for (std::size_t i = 0; i < count; ++i) {
        toVariant(args[i], *values[i].get());
        slots[count - 1 - i] = *values[i].get();
    }
    DISPID putId = DISPID_PROPERTYPUT;
    DISPPARAMS params{};
    params.cArgs = static_cast<UINT>(count);
    params.rgvarg = count > 0 ? slots.data() : nullptr;
    // Script engines take the flags literally: a Sub asked as a property fails, and so does a
    // plain value asked as a method. An indexed read (Item(i)) may be either.
    WORD flags = DISPATCH_METHOD;
    if (kind == CallKind::PropertyGet)
        flags = count == 0 ? DISPATCH_PROPERTYGET : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
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

    return fromVariant(*result.get());
}

} // namespace velkor6::com
