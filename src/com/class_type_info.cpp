#include "com/class_type_info.h"

#include "com/com_object.h"
#include "com/com_ptr.h"

#include <string>

namespace velkor6::com {
namespace {

class ClassTypeInfo final : public ComObject<ClassTypeInfo, ITypeInfo> {
public:
    ClassTypeInfo(ITypeInfo* inner, std::u16string_view name)
        : inner_(ComPtr<ITypeInfo>::share(inner)), name_(name) {}

    void* interfaceFor(REFIID riid) {
        if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_ITypeInfo))
            return static_cast<ITypeInfo*>(this);
        return nullptr;
    }

    HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID member, BSTR* name, BSTR* doc,
                                               DWORD* helpContext, BSTR* helpFile) override {
        const HRESULT hr = inner_->GetDocumentation(member, name, doc, helpContext, helpFile);
        if (SUCCEEDED(hr) && member == MEMBERID_NIL && name != nullptr) {
            SysFreeString(*name);
            *name = allocBstr(name_);
        }
        return hr;
    }

    HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attr) override {
        return inner_->GetTypeAttr(attr);
    }
    HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp** comp) override {
        return inner_->GetTypeComp(comp);
    }
    HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT index, FUNCDESC** desc) override {
        return inner_->GetFuncDesc(index, desc);
    }
    HRESULT STDMETHODCALLTYPE GetVarDesc(UINT index, VARDESC** desc) override {
        return inner_->GetVarDesc(index, desc);
    }
    HRESULT STDMETHODCALLTYPE GetNames(MEMBERID member, BSTR* names, UINT max,
                                       UINT* count) override {
        return inner_->GetNames(member, names, max, count);
    }
    HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT index, HREFTYPE* type) override {
        return inner_->GetRefTypeOfImplType(index, type);
    }
    HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT index, INT* flags) override {
        return inner_->GetImplTypeFlags(index, flags);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR* names, UINT count, MEMBERID* ids) override {
        return inner_->GetIDsOfNames(names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(PVOID instance, MEMBERID member, WORD flags,
                                     DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argError) override {
        return inner_->Invoke(instance, member, flags, params, result, exception, argError);
    }
    HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID member, INVOKEKIND kind, BSTR* dll, BSTR* name,
                                          WORD* ordinal) override {
        return inner_->GetDllEntry(member, kind, dll, name, ordinal);
    }
    HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE type, ITypeInfo** info) override {
        return inner_->GetRefTypeInfo(type, info);
    }
    HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID member, INVOKEKIND kind,
                                              PVOID* address) override {
        return inner_->AddressOfMember(member, kind, address);
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID riid, PVOID* object) override {
        return inner_->CreateInstance(outer, riid, object);
    }
    HRESULT STDMETHODCALLTYPE GetMops(MEMBERID member, BSTR* mops) override {
        return inner_->GetMops(member, mops);
    }
    HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib** lib, UINT* index) override {
        return inner_->GetContainingTypeLib(lib, index);
    }
    void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attr) override {
        inner_->ReleaseTypeAttr(attr);
    }
    void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC* desc) override {
        inner_->ReleaseFuncDesc(desc);
    }
    void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC* desc) override { inner_->ReleaseVarDesc(desc); }

private:
    friend ComObject;
    ~ClassTypeInfo() = default;

    ComPtr<ITypeInfo> inner_;
    std::u16string name_;
};

} // namespace

ITypeInfo* classTypeInfo(ITypeInfo* interfaceInfo, std::u16string_view className) {
    if (interfaceInfo == nullptr)
        return nullptr;
    return new ClassTypeInfo(interfaceInfo, className);
}

} // namespace velkor6::com
