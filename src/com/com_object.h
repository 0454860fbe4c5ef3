// IUnknown for the server's objects: one reference count and one QueryInterface answer for all
// the interfaces an object implements. Derived names what it answers to in interfaceFor().
#pragma once

// clang-format off
#include <windows.h>
#include <unknwn.h>
// clang-format on

#include <atomic>

namespace velkor6::com {

template <class Derived, class... Interfaces>
class ComObject : public Interfaces... {
public:
    // These override IUnknown's methods in every interface base at once.
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** out) final {
        if (out == nullptr)
            return E_POINTER;
        *out = static_cast<Derived*>(this)->interfaceFor(riid);
        if (*out == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0)
            delete static_cast<Derived*>(this);
        return left;
    }

protected:
    // Objects start with the one reference their creator hands out.
    ComObject() = default;
    ~ComObject() = default;

private:
    std::atomic<ULONG> references_{1};
};

} // namespace velkor6::com
