#include "com/object_dispatch.h"

#include "com/call_arguments.h"
#include "com/com_object.h"
#include "com/error_info.h"
#include "com/object_wrap.h"
#include "com/server_state.h"
#include "com/variant_convert.h"
#include "lib/dispatch.h"

#include <string>
#include <vector>

namespace velkor6::com {
namespace {

class ObjectDispatch final : public ComObject<ObjectDispatch, IDispatch, OwnObject> {
public:
    explicit ObjectDispatch(ObjectRef object) : object_(std::move(object)) {}

    void* interfaceFor(REFIID riid) {
        if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IDispatch))
            return static_cast<IDispatch*>(this);
        if (IsEqualIID(riid, iidOwnObject))
            return static_cast<OwnObject*>(this);
        return nullptr;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** out) override {
        if (out != nullptr)
            *out = nullptr;
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        if (names == nullptr || ids == nullptr || count == 0)
            return E_INVALIDARG;
        ids[0] = idOf(reinterpret_cast<const char16_t*>(names[0]));
        // Parameters have no names here.
        for (UINT i = 1; i < count; ++i)
            ids[i] = DISPID_UNKNOWN;
        return count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID riid, LCID, WORD flags,
                                     DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argError) override {
        if (!IsEqualIID(riid, IID_NULL))
            return DISP_E_UNKNOWNINTERFACE;
        std::u16string_view name;
        if (member != DISPID_VALUE) {
            if (member < 1 || static_cast<std::size_t>(member) > names_.size())
                return DISP_E_MEMBERNOTFOUND;
            name = names_[static_cast<std::size_t>(member - 1)];
        }
        const bool assignment = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        DISPPARAMS none{};
        const DISPPARAMS& p = params != nullptr ? *params : none;
        if (p.cNamedArgs > (assignment ? 1u : 0u))
            return DISP_E_NONAMEDARGS;
        try {
            // Without parameter names the only named argument is the assigned value, which
            // read() puts last.
            static const dispatch::Param assigned = dispatch::required(u"value", VarType::Variant);
            CallArguments call;
            if (const HRESULT hr = call.read(p, {&assigned, assignment ? 1u : 0u}, argError);
                FAILED(hr))
                return hr;
            const std::vector<Variant> before(call.values().begin(), call.values().end());
            const CallKind kind = assignment                       ? CallKind::PropertyLet
                                  : (flags & DISPATCH_METHOD) != 0 ? CallKind::Method
                                                                   : CallKind::PropertyGet;
            const Variant value = object_->call(name, kind, call.values());
            call.writeBackChanged(before);
            if (result != nullptr)
                toVariant(value, *result);
            return S_OK;
        } catch (...) {
            return reportCurrentException(exception);
        }
    }

    ObjectRef STDMETHODCALLTYPE object() override { return object_; }
    const void* STDMETHODCALLTYPE owner() override { return thisModuleToken(); }

private:
    friend ComObject;
    ~ObjectDispatch() = default;

    DISPID idOf(std::u16string_view name) {
        for (std::size_t i = 0; i < names_.size(); ++i) {
            if (dispatch::sameName(names_[i], name))
                return static_cast<DISPID>(i + 1);
        }
        names_.emplace_back(name);
        return static_cast<DISPID>(names_.size());
    }

    LiveObject live_;
    ObjectRef object_;
    std::vector<std::u16string> names_;
};

} // namespace

IDispatch* createObjectDispatch(ObjectRef object) {
    return new ObjectDispatch(std::move(object));
}

} // namespace velkor6::com
