// IDispatch over a class's member table: one object of a public class as clients see it.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "com/call_arguments.h"
#include "com/class_type_info.h"
#include "com/com_object.h"
#include "com/com_ptr.h"
#include "com/error_info.h"
#include "com/member_index.h"
#include "com/object_wrap.h"
#include "com/server_state.h"
#include "com/variant_convert.h"
#include "lib/dispatch_object.h"
#include "velkor6/module.h"

#include <memory>

namespace velkor6::com {

template <class Target>
class DispatchObject final : public ComObject<DispatchObject<Target>, IDispatch, OwnObject> {
public:
    // A new object with one reference, which the caller owns.
    // className and interfaceId name the class's type description in the type library;
    // object, when given, is the library's value for the same target (what members that
    // take the object receive).
    static DispatchObject* create(std::shared_ptr<Target> target, const MemberIndex<Target>& index,
                                  std::u16string_view className, const GUID& interfaceId,
                                  std::shared_ptr<Module> context, ObjectRef object = nullptr) {
        return new DispatchObject(std::move(target), index, className, interfaceId,
                                  std::move(context), std::move(object));
    }

    void* interfaceFor(REFIID riid) {
        if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IDispatch) ||
            IsEqualIID(riid, interfaceId_))
            return static_cast<IDispatch*>(this);
        if (IsEqualIID(riid, iidOwnObject))
            return static_cast<OwnObject*>(this);
        return nullptr;
    }

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr)
            return E_POINTER;
        *count = typeInfo() ? 1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** out) override {
        if (out == nullptr)
            return E_POINTER;
        *out = nullptr;
        if (index != 0 || !typeInfo())
            return DISP_E_BADINDEX;
        *out = ComPtr<ITypeInfo>(typeInfo_).detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        if (names == nullptr || ids == nullptr || count == 0)
            return E_INVALIDARG;
        HRESULT hr = S_OK;
        const DISPID member = index_.idOf(name(names[0]));
        ids[0] = member != 0 ? member : DISPID_UNKNOWN;
        if (member == 0)
            hr = DISP_E_UNKNOWNNAME;
        for (UINT i = 1; i < count; ++i) {
            const std::int32_t p = member != 0 ? index_.paramOf(member, name(names[i])) : -1;
            ids[i] = p >= 0 ? p : DISPID_UNKNOWN;
            if (p < 0)
                hr = DISP_E_UNKNOWNNAME;
        }
        return hr;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID riid, LCID, WORD flags,
                                     DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argError) override {
        if (!IsEqualIID(riid, IID_NULL))
            return DISP_E_UNKNOWNINTERFACE;
        const bool assignment = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        const auto* row = index_.row(member, assignment ? CallKind::PropertyLet : CallKind::Method);
        if (row == nullptr)
            return DISP_E_MEMBERNOTFOUND;
        DISPPARAMS none{};
        try {
            CallArguments call;
            if (const HRESULT hr = call.read(params ? *params : none, row->params, argError);
                FAILED(hr))
                return hr;
            const Variant value = dispatch::call(
                *row, *target_, call.arguments(), context_->locale(),
                [&](const dispatch::Binding& binding) { call.writeBack(row->params, binding); });
            if (result != nullptr && row->result != VarType::Empty) {
                toVariant(value, *result);
            }
            return S_OK;
        } catch (...) {
            return reportCurrentException(exception);
        }
    }

    // OwnObject
    ObjectRef STDMETHODCALLTYPE object() override {
        if (!object_) {
            object_ = std::make_shared<dispatch::TableObject<Target>>(target_, index_.table(),
                                                                      std::u16string(className_));
        }
        return object_;
    }
    const void* STDMETHODCALLTYPE owner() override { return thisModuleToken(); }

    Target& target() { return *target_; }

private:
    friend ComObject<DispatchObject<Target>, IDispatch, OwnObject>;

    DispatchObject(std::shared_ptr<Target> target, const MemberIndex<Target>& index,
                   std::u16string_view className, const GUID& interfaceId,
                   std::shared_ptr<Module> context, ObjectRef object)
        : target_(std::move(target)), index_(index), className_(className),
          interfaceId_(interfaceId), context_(std::move(context)), object_(std::move(object)) {}
    ~DispatchObject() = default;

    static std::u16string_view name(LPOLESTR s) {
        return s == nullptr ? std::u16string_view()
                            : std::u16string_view(reinterpret_cast<const char16_t*>(s));
    }

    bool typeInfo() {
        if (!typeInfoLooked_) {
            typeInfoLooked_ = true;
            typeInfo_ =
                ComPtr<ITypeInfo>::adopt(classTypeInfo(typeInfoOf(interfaceId_).get(), className_));
        }
        return static_cast<bool>(typeInfo_);
    }

    LiveObject live_;
    std::shared_ptr<Target> target_;
    const MemberIndex<Target>& index_;
    std::u16string_view className_;
    GUID interfaceId_;
    std::shared_ptr<Module> context_;
    ObjectRef object_;
    ComPtr<ITypeInfo> typeInfo_;
    bool typeInfoLooked_ = false;
};

} // namespace velkor6::com
