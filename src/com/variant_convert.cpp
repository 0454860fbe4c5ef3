#include "com/variant_convert.h"

#include "com/com_ptr.h"
#include "com/object_wrap.h"
#include "velkor6/vb_error.h"

#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace velkor6::com {
namespace {

// Locks a SAFEARRAY's data for the lifetime of the guard.
class ArrayData {
public:
    explicit ArrayData(SAFEARRAY* sa) : sa_(sa) {
        if (FAILED(SafeArrayAccessData(sa_, &data_)))
            throw VbError(vberr::typeMismatch);
    }
    ~ArrayData() { SafeArrayUnaccessData(sa_); }
    ArrayData(const ArrayData&) = delete;
    ArrayData& operator=(const ArrayData&) = delete;

    unsigned char* bytes() const { return static_cast<unsigned char*>(data_); }

private:
    SAFEARRAY* sa_;
    void* data_ = nullptr;
};

// The element type of a SAFEARRAY as the array's VarType element.
VarType elementTypeOf(VARTYPE vt) {
    switch (vt) {
    case VT_I2:
    case VT_I4:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_ERROR:
    case VT_BOOL:
    case VT_VARIANT:
    case VT_DECIMAL:
    case VT_UI1:
        return static_cast<VarType>(vt);
    case VT_UNKNOWN:
        return VarType::Object;
    default:
        return VarType::Variant;
    }
}

Variant fromSafeArray(SAFEARRAY* sa, VARTYPE elementVt) {
    VariantArray a;
    a.element = elementTypeOf(elementVt);
    if (sa == nullptr)
        return Variant(std::move(a));
    const UINT dims = SafeArrayGetDim(sa);
    std::size_t count = dims == 0 ? 0 : 1;
    for (UINT d = 1; d <= dims; ++d) {
        LONG lower = 0;
        LONG upper = -1;
        SafeArrayGetLBound(sa, d, &lower);
        SafeArrayGetUBound(sa, d, &upper);
        const std::int32_t n = upper >= lower ? upper - lower + 1 : 0;
        a.bounds.push_back({lower, n});
        count *= static_cast<std::size_t>(n);
    }
    if (count == 0)
        return Variant(std::move(a));

    VARTYPE vt = elementVt;
    if (vt == VT_EMPTY && FAILED(SafeArrayGetVartype(sa, &vt)))
        throw VbError(vberr::typeMismatch);
    const UINT size = SafeArrayGetElemsize(sa);
    ArrayData data(sa);
    a.items.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        // Each element is read through a reference to it, as if it had been passed ByRef.
        VARIANT ref;
        VariantInit(&ref);
        V_VT(&ref) = static_cast<VARTYPE>(VT_BYREF | vt);
        V_BYREF(&ref) = data.bytes() + i * size;
        a.items.push_back(fromVariant(ref));
    }
    return Variant(std::move(a));
}

template <class T>
const T& valueAt(const VARIANT& v, const T& direct) {
    return (V_VT(&v) & VT_BYREF) != 0 ? *static_cast<const T*>(V_BYREF(&v)) : direct;
}

// Integer types the library has no type for: Long when the value fits, Double otherwise.
template <class T>
Variant fromWideInteger(T value) {
    if (value >= static_cast<T>(0) ? static_cast<std::uint64_t>(value) <= 2147483647u
                                   : static_cast<std::int64_t>(value) >= -2147483648LL)
        return Variant(static_cast<std::int32_t>(value));
    return Variant(static_cast<double>(value));
}

Decimal fromDecimal(const DECIMAL& d) {
    Decimal out;
    out.hi = d.Hi32;
    out.lo = d.Lo64;
    out.scale = d.scale;
    out.negative = (d.sign & DECIMAL_NEG) != 0;
    return out;
}

SAFEARRAY* toSafeArray(const VariantArray& a) {
    if (a.bounds.empty())
        return nullptr;
    std::vector<SAFEARRAYBOUND> bounds;
    bounds.reserve(a.bounds.size());
    for (const ArrayBound& b : a.bounds)
        bounds.push_back({static_cast<ULONG>(b.count), b.lower});
    SAFEARRAY* sa = SafeArrayCreate(VT_VARIANT, static_cast<UINT>(bounds.size()), bounds.data());
    if (sa == nullptr)
        throw std::bad_alloc();
    try {
        ArrayData data(sa);
        auto* items = reinterpret_cast<VARIANT*>(data.bytes());
        for (std::size_t i = 0; i < a.items.size(); ++i)
            toVariant(a.items[i], items[i]);
    } catch (...) {
        SafeArrayDestroy(sa);
        throw;
    }
    return sa;
}

} // namespace

Variant fromVariant(const VARIANT& in) {
    const VARIANT* v = &in;
    while (V_VT(v) == (VT_BYREF | VT_VARIANT))
        v = V_VARIANTREF(v);
    const VARTYPE vt = V_VT(v) & ~VT_BYREF;
    if ((vt & VT_ARRAY) != 0) {
        SAFEARRAY* sa = (V_VT(v) & VT_BYREF) != 0 ? *V_ARRAYREF(v) : V_ARRAY(v);
        return fromSafeArray(sa, vt & VT_TYPEMASK);
    }
    switch (vt) {
    case VT_EMPTY:
        return Variant();
    case VT_NULL:
        return Variant::null();
    case VT_I2:
        return Variant(static_cast<std::int16_t>(valueAt(*v, V_I2(v))));
    case VT_I4:
        return Variant(static_cast<std::int32_t>(valueAt(*v, V_I4(v))));
    case VT_R4:
        return Variant(valueAt(*v, V_R4(v)));
    case VT_R8:
        return Variant(valueAt(*v, V_R8(v)));
    case VT_CY:
        return Variant(Currency{valueAt(*v, V_CY(v)).int64});
    case VT_DATE:
        return Variant(Date{valueAt(*v, V_DATE(v))});
    case VT_BSTR:
        return Variant(fromBstr(valueAt(*v, V_BSTR(v))));
    case VT_DISPATCH:
        return Variant(objectFor(valueAt(*v, V_DISPATCH(v))));
    case VT_ERROR:
        return Variant(ErrorCode{static_cast<std::int32_t>(valueAt(*v, V_ERROR(v)))});
    case VT_BOOL:
        return Variant(valueAt(*v, V_BOOL(v)) != VARIANT_FALSE);
    case VT_DECIMAL:
        return Variant(fromDecimal((V_VT(v) & VT_BYREF) != 0 ? *V_DECIMALREF(v) : V_DECIMAL(v)));
    case VT_UI1:
        return Variant(static_cast<std::uint8_t>(valueAt(*v, V_UI1(v))));
    case VT_UNKNOWN: {
        IUnknown* unknown = valueAt(*v, V_UNKNOWN(v));
        if (unknown == nullptr)
            return Variant::nothing();
        ComPtr<IDispatch> dispatch;
        if (FAILED(
                unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(dispatch.put()))))
            throw VbError(vberr::typeMismatch);
        return Variant(objectFor(dispatch.get()));
    }
    case VT_I1:
        return fromWideInteger(valueAt(*v, V_I1(v)));
    case VT_UI2:
        return fromWideInteger(valueAt(*v, V_UI2(v)));
    case VT_UI4:
        return fromWideInteger(valueAt(*v, V_UI4(v)));
    case VT_I8:
        return fromWideInteger(valueAt(*v, V_I8(v)));
    case VT_UI8:
        return fromWideInteger(valueAt(*v, V_UI8(v)));
    case VT_INT:
        return fromWideInteger(valueAt(*v, V_INT(v)));
    case VT_UINT:
        return fromWideInteger(valueAt(*v, V_UINT(v)));
    default:
        throw VbError(vberr::typeMismatch);
    }
}

void toVariant(const Variant& value, VARIANT& out) {
    VariantInit(&out);
    if (value.isArray()) {
        SAFEARRAY* sa = toSafeArray(value.array());
        V_VT(&out) = VT_ARRAY | VT_VARIANT;
        V_ARRAY(&out) = sa;
        return;
    }
    switch (value.type()) {
    case VarType::Empty:
        break;
    case VarType::Null:
        V_VT(&out) = VT_NULL;
        break;
    case VarType::Integer:
        V_VT(&out) = VT_I2;
        V_I2(&out) = value.integer();
        break;
    case VarType::Long:
        V_VT(&out) = VT_I4;
        V_I4(&out) = value.longValue();
        break;
    case VarType::Single:
        V_VT(&out) = VT_R4;
        V_R4(&out) = value.single();
        break;
    case VarType::Double:
        V_VT(&out) = VT_R8;
        V_R8(&out) = value.doubleValue();
        break;
    case VarType::Currency:
        V_VT(&out) = VT_CY;
        V_CY(&out).int64 = value.currency().scaled;
        break;
    case VarType::Date:
        V_VT(&out) = VT_DATE;
        V_DATE(&out) = value.date().serial;
        break;
    case VarType::String: {
        BSTR b = allocBstr(value.string());
        if (b == nullptr)
            throw std::bad_alloc();
        V_VT(&out) = VT_BSTR;
        V_BSTR(&out) = b;
        break;
    }
    case VarType::Object:
        V_DISPATCH(&out) = dispatchFor(value.object());
        V_VT(&out) = VT_DISPATCH;
        break;
    case VarType::Error:
        V_VT(&out) = VT_ERROR;
        V_ERROR(&out) = value.error().scode;
        break;
    case VarType::Boolean:
        V_VT(&out) = VT_BOOL;
        V_BOOL(&out) = value.boolean() ? VARIANT_TRUE : VARIANT_FALSE;
        break;
    case VarType::Decimal: {
        // The DECIMAL overlays the whole VARIANT, its type field included: set that last.
        const Decimal& d = value.decimal();
        DECIMAL& dec = V_DECIMAL(&out);
        dec.Hi32 = d.hi;
        dec.Lo64 = d.lo;
        dec.scale = d.scale;
        dec.sign = d.negative ? DECIMAL_NEG : 0;
        V_VT(&out) = VT_DECIMAL;
        break;
    }
    case VarType::Byte:
        V_VT(&out) = VT_UI1;
        V_UI1(&out) = value.byte();
        break;
    default:
        throw VbError(vberr::typeMismatch);
    }
}

namespace {

// Replaces a typed array the caller passed by reference (early binding: x() As String).
HRESULT writeTypedArray(const Variant& value, VARTYPE vt, SAFEARRAY** target) {
    if (!value.isArray())
        return DISP_E_TYPEMISMATCH;
    const VariantArray& a = value.array();
    std::vector<ScopedVariant> items(a.items.size());
    for (std::size_t i = 0; i < a.items.size(); ++i) {
        toVariant(a.items[i], *items[i].get());
        if (vt == VT_VARIANT)
            continue;
        if (const HRESULT hr = VariantChangeType(items[i].get(), items[i].get(), 0, vt); FAILED(hr))
            return hr;
    }
    SAFEARRAY* sa = nullptr;
    if (!a.bounds.empty()) {
        std::vector<SAFEARRAYBOUND> bounds;
        for (const ArrayBound& b : a.bounds)
            bounds.push_back({static_cast<ULONG>(b.count), b.lower});
        sa = SafeArrayCreate(vt, static_cast<UINT>(bounds.size()), bounds.data());
        if (sa == nullptr)
            return E_OUTOFMEMORY;
        const UINT size = SafeArrayGetElemsize(sa);
        ArrayData data(sa);
        for (std::size_t i = 0; i < items.size(); ++i) {
            // The array takes over what each converted VARIANT owns.
            VARIANT moved = items[i].detach();
            const void* from = vt == VT_VARIANT   ? static_cast<const void*>(&moved)
                               : vt == VT_DECIMAL ? static_cast<const void*>(&V_DECIMAL(&moved))
                                                  : static_cast<const void*>(&V_UI1(&moved));
            std::memcpy(data.bytes() + i * size, from, size);
        }
    }
    SafeArrayDestroy(*target);
    *target = sa;
    return S_OK;
}

} // namespace

HRESULT writeByRef(const Variant& value, const VARIANT& target) {
    const VARTYPE vt = V_VT(&target) & ~VT_BYREF;
    if ((V_VT(&target) & VT_BYREF) == 0)
        return S_OK;
    if (vt == VT_VARIANT) {
        VARIANT* ref = V_VARIANTREF(&target);
        ScopedVariant fresh;
        toVariant(value, *fresh.get());
        VariantClear(ref);
        *ref = fresh.detach();
        return S_OK;
    }
    if ((vt & VT_ARRAY) != 0)
        return writeTypedArray(value, vt & VT_TYPEMASK, V_ARRAYREF(&target));

    ScopedVariant converted;
    toVariant(value, *converted.get());
    if (const HRESULT hr = VariantChangeType(converted.get(), converted.get(), 0, vt); FAILED(hr))
        return hr;
    void* slot = V_BYREF(&target);
    switch (vt) {
    case VT_BSTR:
        SysFreeString(*static_cast<BSTR*>(slot));
        *static_cast<BSTR*>(slot) = V_BSTR(converted.get());
        break;
    case VT_DISPATCH:
    case VT_UNKNOWN:
        if (auto* old = *static_cast<IUnknown**>(slot))
            old->Release();
        *static_cast<IUnknown**>(slot) = V_UNKNOWN(converted.get());
        break;
    case VT_DECIMAL:
        *static_cast<DECIMAL*>(slot) = V_DECIMAL(converted.get());
        return S_OK;
    case VT_I2:
    case VT_BOOL:
        std::memcpy(slot, &V_I2(converted.get()), 2);
        return S_OK;
    case VT_I4:
    case VT_R4:
    case VT_ERROR:
        std::memcpy(slot, &V_I4(converted.get()), 4);
        return S_OK;
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        std::memcpy(slot, &V_R8(converted.get()), 8);
        return S_OK;
    case VT_UI1:
        std::memcpy(slot, &V_UI1(converted.get()), 1);
        return S_OK;
    default:
        return DISP_E_TYPEMISMATCH;
    }
    // The referenced slot now owns the BSTR or interface.
    converted.detach();
    return S_OK;
}

} // namespace velkor6::com
