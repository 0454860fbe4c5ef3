#include "com/com_ptr.h"
#include "com/variant_convert.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6::com {
namespace {

Variant roundTrip(const Variant& v) {
    ScopedVariant out;
    toVariant(v, *out.get());
    return fromVariant(*out.get());
}

TEST(VariantConvert, EveryScalarTypeSurvivesTheRoundTrip) {
    Decimal d;
    d.lo = 123456789012345ULL;
    d.hi = 7;
    d.scale = 4;
    d.negative = true;
    const Variant values[] = {Variant(),
                              Variant::null(),
                              Variant(std::int16_t{-32768}),
                              Variant(std::int32_t{2147483647}),
                              Variant(1.5f),
                              Variant(-2.25),
                              Variant(Currency{-123456789}),
                              Variant(Date{45000.75}),
                              Variant(u""),
                              Variant(u"Grüße \u20ac"),
                              Variant(true),
                              Variant(false),
                              Variant(d),
                              Variant(std::uint8_t{255}),
                              Variant::missing(),
                              Variant::nothing()};
    for (const Variant& v : values)
        EXPECT_EQ(roundTrip(v), v) << static_cast<int>(v.type());

    ScopedVariant b;
    toVariant(Variant(true), *b.get());
    EXPECT_EQ(V_BOOL(b.get()), VARIANT_TRUE); // True is -1 on the wire
}

TEST(VariantConvert, ForeignIntegerTypesBecomeLongOrDouble) {
    struct Case {
        VARTYPE vt;
        LONGLONG value;
        Variant expected;
    };
    const Case cases[] = {
        {VT_I8, 42, Variant(std::int32_t{42})},        {VT_I8, 5000000000LL, Variant(5000000000.0)},
        {VT_UI4, 4000000000LL, Variant(4000000000.0)}, {VT_I1, -5, Variant(std::int32_t{-5})},
        {VT_INT, -7, Variant(std::int32_t{-7})},
    };
    for (const Case& c : cases) {
        VARIANT v;
        VariantInit(&v);
        V_VT(&v) = c.vt;
        V_I8(&v) = 0;
        switch (c.vt) {
        case VT_I8:
            V_I8(&v) = c.value;
            break;
        case VT_UI4:
            V_UI4(&v) = static_cast<ULONG>(c.value);
            break;
        case VT_I1:
            V_I1(&v) = static_cast<CHAR>(c.value);
            break;
        default:
            V_INT(&v) = static_cast<INT>(c.value);
            break;
        }
        EXPECT_EQ(fromVariant(v), c.expected) << c.vt;
    }
    VARIANT odd;
    VariantInit(&odd);
    V_VT(&odd) = VT_RECORD;
    try {
        fromVariant(odd);
        ADD_FAILURE() << "a record has no counterpart";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), vberr::typeMismatch);
    }
}

TEST(VariantConvert, ArraysKeepBoundsAndBecomeVariantArrays) {
    // Two dimensions, 1 To 2 and 0 To 2, the first varying fastest.
    VariantArray a;
    a.bounds = {{1, 2}, {0, 3}};
    for (int i = 0; i < 6; ++i)
        a.items.push_back(i % 2 == 0 ? Variant(std::int32_t{i}) : Variant(u"s"));
    const Variant array(a);

    ScopedVariant out;
    toVariant(array, *out.get());
    ASSERT_EQ(V_VT(out.get()), VT_ARRAY | VT_VARIANT);
    SAFEARRAY* sa = V_ARRAY(out.get());
    ASSERT_EQ(SafeArrayGetDim(sa), 2u);
    LONG lower = 0, upper = 0;
    SafeArrayGetLBound(sa, 1, &lower);
    SafeArrayGetUBound(sa, 1, &upper);
    EXPECT_EQ(lower, 1);
    EXPECT_EQ(upper, 2);
    SafeArrayGetLBound(sa, 2, &lower);
    SafeArrayGetUBound(sa, 2, &upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 2);
    LONG at[] = {2, 1}; // element (2, 1) is item 1 + 2 * 1 = 3
    ScopedVariant element;
    ASSERT_EQ(SafeArrayGetElement(sa, at, element.get()), S_OK);
    EXPECT_EQ(fromVariant(*element.get()), Variant(u"s"));
    EXPECT_EQ(fromVariant(*out.get()), array);

    // A typed array passed by reference keeps its element type.
    SAFEARRAYBOUND bound{2, 5};
    SAFEARRAY* strings = SafeArrayCreate(VT_BSTR, 1, &bound);
    LONG index = 6;
    Bstr text(u"six");
    SafeArrayPutElement(strings, &index, text.get());
    VARIANT ref;
    VariantInit(&ref);
    V_VT(&ref) = VT_BYREF | VT_ARRAY | VT_BSTR;
    V_ARRAYREF(&ref) = &strings;
    const Variant read = fromVariant(ref);
    ASSERT_TRUE(read.isArray());
    EXPECT_EQ(read.array().element, VarType::String);
    EXPECT_EQ(read.array().bounds, (std::vector<ArrayBound>{{5, 2}}));
    EXPECT_EQ(read.array().items[1], Variant(u"six"));

    // The member hands back a new array in its place, of the caller's element type.
    EXPECT_EQ(writeByRef(Variant::array({Variant(std::int32_t{1}), Variant(u"b")}), ref), S_OK);
    VARTYPE vt = VT_EMPTY;
    SafeArrayGetVartype(strings, &vt);
    EXPECT_EQ(vt, VT_BSTR);
    EXPECT_EQ(fromVariant(ref), Variant::array({Variant(u"1"), Variant(u"b")}, VarType::String));
    SafeArrayDestroy(strings);
}

TEST(VariantConvert, ByRefWriteBackConvertsToTheReferencedType) {
    BSTR text = SysAllocString(L"old");
    VARIANT toText;
    VariantInit(&toText);
    V_VT(&toText) = VT_BYREF | VT_BSTR;
    V_BSTRREF(&toText) = &text;
    EXPECT_EQ(writeByRef(Variant(std::int32_t{42}), toText), S_OK);
    EXPECT_EQ(fromBstr(text), u"42");
    SysFreeString(text);

    short number = 7;
    VARIANT toNumber;
    VariantInit(&toNumber);
    V_VT(&toNumber) = VT_BYREF | VT_I2;
    V_I2REF(&toNumber) = &number;
    EXPECT_EQ(writeByRef(Variant(u"x"), toNumber), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(writeByRef(Variant(std::int32_t{70000}), toNumber), DISP_E_OVERFLOW);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(writeByRef(Variant(2.5), toNumber), S_OK);
    EXPECT_EQ(number, 2); // half to even

    VARIANT held;
    VariantInit(&held);
    V_VT(&held) = VT_BSTR;
    V_BSTR(&held) = SysAllocString(L"replaced");
    VARIANT toVariantRef;
    VariantInit(&toVariantRef);
    V_VT(&toVariantRef) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&toVariantRef) = &held;
    EXPECT_EQ(writeByRef(Variant(std::int16_t{3}), toVariantRef), S_OK);
    EXPECT_EQ(V_VT(&held), VT_I2);
    EXPECT_EQ(V_I2(&held), 3);
}

} // namespace
} // namespace velkor6::com
