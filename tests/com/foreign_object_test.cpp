#include "com/com_ptr.h"
#include "com/foreign_object.h"
#include "com/object_wrap.h"
#include "velkor6/vb_error.h"

#include <atomic>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velkor6::com {
namespace {

// A caller's object as a script engine would make it: a property, a method, a property let,
// and a method that fails with a VB error.
class HostObject final : public IDispatch {
public:
    std::u16string path = u"C:\\Apps\\Demo";
    std::atomic<ULONG> references{1};
    WORD lastFlags = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** out) override {
        if (!IsEqualIID(riid, IID_IUnknown) && !IsEqualIID(riid, IID_IDispatch)) {
            *out = nullptr;
            return E_NOINTERFACE;
        }
        *out = this;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) override {
        const std::wstring name(names[0]);
        for (std::size_t i = 0; i < members_.size(); ++i) {
            if (_wcsicmp(members_[i], name.c_str()) == 0) {
                ids[0] = static_cast<DISPID>(i + 1);
                return S_OK;
            }
        }
        ids[0] = DISPID_UNKNOWN;
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params,
                                     VARIANT* result, EXCEPINFO* info, UINT*) override {
        lastFlags = flags;
        switch (id) {
        case 1: // Path
            if ((flags & DISPATCH_PROPERTYPUT) != 0) {
                if (params->cNamedArgs != 1 || params->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)
                    return DISP_E_PARAMNOTFOUND;
                path = fromBstr(V_BSTR(&params->rgvarg[0]));
                return S_OK;
            }
            V_VT(result) = VT_BSTR;
            V_BSTR(result) = allocBstr(path);
            return S_OK;
        case 2: // Double(n)
            V_VT(result) = VT_I4;
            V_I4(result) = V_I4(&params->rgvarg[0]) * 2;
            return S_OK;
        case 3: // Remove: fails like a collection out of range
            info->scode = static_cast<SCODE>(0x800A0009);
            info->bstrSource = SysAllocString(L"Host");
            info->bstrDescription = SysAllocString(L"Subscript out of range");
            return DISP_E_EXCEPTION;
        default:
            return DISP_E_MEMBERNOTFOUND;
        }
    }

private:
    std::vector<const wchar_t*> members_{L"Path", L"Double", L"Remove"};
};

TEST(ForeignObject, MembersCallTheCallersObjectByName) {
    HostObject host;
    {
        const ObjectRef object = objectFor(&host);
        EXPECT_EQ(object->typeName(), u"Object");
        std::vector<Variant> none;
        EXPECT_EQ(object->call(u"PATH", CallKind::PropertyGet, none), Variant(u"C:\\Apps\\Demo"));
        EXPECT_EQ(host.lastFlags, DISPATCH_PROPERTYGET);

        std::vector<Variant> assigned{Variant(u"D:\\Other")};
        object->call(u"Path", CallKind::PropertyLet, assigned);
        EXPECT_EQ(host.path, u"D:\\Other");

        std::vector<Variant> number{Variant(std::int32_t{21})};
        EXPECT_EQ(object->call(u"Double", CallKind::Method, number), Variant(std::int32_t{42}));
        EXPECT_EQ(host.lastFlags, DISPATCH_METHOD);

        try {
            object->call(u"Remove", CallKind::Method, none);
            ADD_FAILURE() << "Remove raises";
        } catch (const VbError& e) {
            EXPECT_EQ(e.number(), 9);
            EXPECT_EQ(e.source(), u"Host");
            EXPECT_EQ(e.description(), u"Subscript out of range");
        }
        try {
            object->call(u"Nope", CallKind::Method, none);
            ADD_FAILURE() << "an unknown member raises";
        } catch (const VbError& e) {
            EXPECT_EQ(e.number(), vberr::noSuchMember);
        }

        // Handed back out, the caller gets its own object, not a wrapper.
        IDispatch* back = dispatchFor(object);
        EXPECT_EQ(back, &host);
        back->Release();
    }
    EXPECT_EQ(host.references, 1u);
}

} // namespace
} // namespace velkor6::com
