// Owners of COM references, BSTRs and VARIANTs, so that no path leaks one.
#pragma once

// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

#include <string>
#include <string_view>
#include <utility>

namespace velkor6::win32 {

template <class T>
class ComPtr {
public:
    ComPtr() = default;
    // Takes over a reference the caller already holds.
    static ComPtr adopt(T* p) {
        ComPtr c;
        c.p_ = p;
        return c;
    }
    // Adds a reference of its own.
    static ComPtr share(T* p) {
        if (p != nullptr)
            p->AddRef();
        return adopt(p);
    }
    ComPtr(const ComPtr& other) : p_(other.p_) {
        if (p_ != nullptr)
            p_->AddRef();
    }
    ComPtr(ComPtr&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(p_, other.p_);
        return *this;
    }
    ~ComPtr() { reset(); }

    void reset() {
        if (T* p = std::exchange(p_, nullptr))
            p->Release();
    }
    T* get() const { return p_; }
    T* operator->() const { return p_; }
    explicit operator bool() const { return p_ != nullptr; }
    // For out-parameters: releases what it held and receives a new reference.
    T** put() {
        reset();
        return &p_;
    }
    // Hands the reference to the caller.
    T* detach() { return std::exchange(p_, nullptr); }

private:
    T* p_ = nullptr;
};

class Bstr {
public:
    Bstr() = default;
    explicit Bstr(std::u16string_view s)
        : b_(SysAllocStringLen(reinterpret_cast<const OLECHAR*>(s.data()),
                               static_cast<UINT>(s.size()))) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(b_); }

    BSTR get() const { return b_; }
    BSTR* put() {
        SysFreeString(std::exchange(b_, nullptr));
        return &b_;
    }
    BSTR detach() { return std::exchange(b_, nullptr); }

private:
    BSTR b_ = nullptr;
};

inline std::u16string fromBstr(BSTR b) {
    return std::u16string(reinterpret_cast<const char16_t*>(b), SysStringLen(b));
}

inline BSTR allocBstr(std::u16string_view s) {
    return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(s.data()),
                             static_cast<UINT>(s.size()));
}

class ScopedVariant {
public:
    ScopedVariant() { VariantInit(&v_); }
    ScopedVariant(const ScopedVariant&) = delete;
    ScopedVariant& operator=(const ScopedVariant&) = delete;
    ScopedVariant(ScopedVariant&& other) noexcept : v_(other.v_) { VariantInit(&other.v_); }
    ~ScopedVariant() { VariantClear(&v_); }

    VARIANT* get() { return &v_; }
    const VARIANT* get() const { return &v_; }
    VARIANT* operator->() { return &v_; }
    VARIANT detach() {
        VARIANT v = v_;
        VariantInit(&v_);
        return v;
    }

private:
    VARIANT v_;
};

} // namespace velkor6::win32
