#include "com/com_ptr.h"
#include "com/dispatch_object.h"
#include "com/object_wrap.h"
#include "com/server_state.h"
#include "com_test_support.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6::com {
namespace {

using namespace test;

// A class of its own with one member of each shape the server has to handle.
struct Probe {
    std::u16string text = u"abcdef";
    const Locale& locale() const { return Locale::englishUS(); }
};

const dispatch::Table<Probe>& probeMembers() {
    using T = VarType;
    static const dispatch::Table<Probe> table = [] {
        dispatch::Table<Probe> t;
        // Join(a, Optional sep = "-", Optional ByRef length As Integer) = a & sep & a
        t.push_back(
            {1,
             u"Join",
             CallKind::Method,
             {dispatch::required(u"sLeft", T::String), dispatch::optional(u"sSep", T::String, u"-"),
              dispatch::optionalByRef(u"iLength", T::Integer, std::int16_t{0})},
             T::String,
             [](Probe&, dispatch::Args& a) -> Variant {
                 const std::u16string joined = a.str(0) + a.str(1) + a.str(0);
                 a[2] = static_cast<std::int16_t>(joined.size());
                 return joined;
             },
             u"",
             u""});
        t.push_back({2,
                     u"Text",
                     CallKind::PropertyGet,
                     {dispatch::optional(u"lStart", T::Long, std::int32_t{1})},
                     T::String,
                     [](Probe& p, dispatch::Args& a) -> Variant {
                         return p.text.substr(static_cast<std::size_t>(a.i32(0) - 1));
                     },
                     u"",
                     u""});
        t.push_back({2,
                     u"Text",
                     CallKind::PropertyLet,
                     {dispatch::optional(u"lStart", T::Long, std::int32_t{1}),
                      dispatch::required(u"sValue", T::String)},
                     T::Empty,
                     [](Probe& p, dispatch::Args& a) -> Variant {
                         p.text =
                             p.text.substr(0, static_cast<std::size_t>(a.i32(0) - 1)) + a.str(1);
                         return {};
                     },
                     u"",
                     u""});
        t.push_back({3,
                     u"Fail",
                     CallKind::Method,
                     {dispatch::required(u"lNumber", T::Long)},
                     T::Empty,
                     [](Probe&, dispatch::Args& a) -> Variant {
                         if (a.i32(0) == 0)
                             throw VbError(vberr::library, u"Own failure", u"velkor6.Fail");
                         throw VbError(a.i32(0));
                     },
                     u"",
                     u""});
        t.push_back({4,
                     u"Echo",
                     CallKind::Method,
                     {dispatch::required(u"vValue", T::Variant)},
                     T::Variant,
                     [](Probe&, dispatch::Args& a) -> Variant { return a[0]; },
                     u"",
                     u""});
        return t;
    }();
    return table;
}

const GUID probeInterface = {
    0x1d5a0c11, 0x2b3e, 0x4c5d, {0x8e, 0x9f, 0x10, 0x21, 0x32, 0x43, 0x54, 0x65}};

class DispatchObjectTest : public ::testing::Test {
protected:
    DispatchObjectTest()
        : index_(probeMembers()), probe_(std::make_shared<Probe>()),
          object_(ComPtr<IDispatch>::adopt(DispatchObject<Probe>::create(
              probe_, index_, u"probe", probeInterface,
              std::make_shared<Module>(std::make_unique<Platform>(), Locale::englishUS())))) {}

    DISPID id(std::u16string_view name) {
        std::u16string text(name);
        auto* names = reinterpret_cast<LPOLESTR>(text.data());
        DISPID result = 0;
        EXPECT_EQ(object_->GetIDsOfNames(IID_NULL, &names, 1, 0, &result), S_OK) << toUtf8(name);
        return result;
    }

    HRESULT invoke(std::u16string_view member, WORD flags, Call& call, ScopedVariant& result,
                   EXCEPINFO& info) {
        return object_->Invoke(id(member), IID_NULL, 0, flags, call.params(), result.get(), &info,
                               nullptr);
    }

    std::u16string text(const ScopedVariant& v) {
        EXPECT_EQ(V_VT(v.get()), VT_BSTR);
        return V_VT(v.get()) == VT_BSTR ? fromBstr(V_BSTR(v.get())) : u"";
    }

    MemberIndex<Probe> index_;
    std::shared_ptr<Probe> probe_;
    ComPtr<IDispatch> object_;
};

TEST_F(DispatchObjectTest, NamesResolveInAnyCaseWithTheirParameters) {
    EXPECT_EQ(id(u"join"), id(u"JOIN"));
    EXPECT_EQ(id(u"Text"), id(u"text")); // get and let share one number
    EXPECT_NE(id(u"Join"), id(u"Text"));

    std::u16string member = u"JOIN", sep = u"ssep", length = u"ILength", bogus = u"nope";
    LPOLESTR names[] = {reinterpret_cast<LPOLESTR>(member.data()),
                        reinterpret_cast<LPOLESTR>(length.data()),
                        reinterpret_cast<LPOLESTR>(sep.data())};
    DISPID ids[3] = {};
    ASSERT_EQ(object_->GetIDsOfNames(IID_NULL, names, 3, 0, ids), S_OK);
    EXPECT_EQ(ids[1], 2);
    EXPECT_EQ(ids[2], 1);

    names[1] = reinterpret_cast<LPOLESTR>(bogus.data());
    EXPECT_EQ(object_->GetIDsOfNames(IID_NULL, names, 2, 0, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[1], DISPID_UNKNOWN);
    names[0] = reinterpret_cast<LPOLESTR>(bogus.data());
    EXPECT_EQ(object_->GetIDsOfNames(IID_NULL, names, 1, 0, ids), DISP_E_UNKNOWNNAME);
}

TEST_F(DispatchObjectTest, ArgumentsArePositionalNamedOrOmitted) {
    const WORD call = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    struct Case {
        const char* what;
        std::vector<VARIANT> positional;
        std::vector<std::pair<DISPID, VARIANT>> named;
        std::u16string expected;
    };
    std::vector<Case> cases;
    cases.push_back({"trailing optionals left out", {bstrArg(u"ab")}, {}, u"ab-ab"});
    cases.push_back({"all positional", {bstrArg(u"ab"), bstrArg(u"+")}, {}, u"ab+ab"});
    cases.push_back(
        {"a gap marked missing", {bstrArg(u"ab"), missingArg(), i2Arg(0)}, {}, u"ab-ab"});
    cases.push_back({"named", {bstrArg(u"ab")}, {{1, bstrArg(u"/")}}, u"ab/ab"});
    cases.push_back({"coerced", {i4Arg(7), i2Arg(0)}, {}, u"707"});
    for (Case& c : cases) {
        Call args(c.positional, c.named);
        ScopedVariant result;
        EXCEPINFO info{};
        EXPECT_EQ(invoke(u"Join", call, args, result, info), S_OK) << c.what;
        EXPECT_EQ(text(result), c.expected) << c.what;
    }
}

TEST_F(DispatchObjectTest, ByRefArgumentsAreWrittenBack) {
    VARIANT length;
    VariantInit(&length);
    {
        Call args({bstrArg(u"abc"), bstrArg(u", "), refArg(length)});
        ScopedVariant result;
        EXCEPINFO info{};
        ASSERT_EQ(invoke(u"Join", DISPATCH_METHOD, args, result, info), S_OK);
    }
    EXPECT_EQ(V_VT(&length), VT_I2);
    EXPECT_EQ(V_I2(&length), 8);

    // An early-bound client passes the typed variable itself.
    short typed = 0;
    VARIANT typedRef;
    VariantInit(&typedRef);
    V_VT(&typedRef) = VT_BYREF | VT_I2;
    V_I2REF(&typedRef) = &typed;
    Call args({bstrArg(u"x"), missingArg(), typedRef});
    ScopedVariant result;
    EXCEPINFO info{};
    ASSERT_EQ(invoke(u"Join", DISPATCH_METHOD, args, result, info), S_OK);
    EXPECT_EQ(typed, 3);
}

TEST_F(DispatchObjectTest, PropertyGetAndLetTakeIndexArguments) {
    {
        Call put({i4Arg(3)}, {{DISPID_PROPERTYPUT, bstrArg(u"XY")}});
        ScopedVariant none;
        EXCEPINFO info{};
        ASSERT_EQ(invoke(u"Text", DISPATCH_PROPERTYPUT, put, none, info), S_OK);
    }
    EXPECT_EQ(probe_->text, u"abXY");
    Call get({i4Arg(2)});
    ScopedVariant result;
    EXCEPINFO info{};
    ASSERT_EQ(invoke(u"text", DISPATCH_PROPERTYGET, get, result, info), S_OK);
    EXPECT_EQ(text(result), u"bXY");
}

TEST_F(DispatchObjectTest, ErrorsComeBackAsExceptionsWithNumberSourceAndDescription) {
    struct Case {
        std::u16string member;
        std::vector<VARIANT> args;
        HRESULT scode;
        std::u16string source;
        std::u16string description;
    };
    std::vector<Case> cases;
    cases.push_back(
        {u"Fail", {i4Arg(0)}, static_cast<HRESULT>(0x80040000), u"velkor6.Fail", u"Own failure"});
    cases.push_back(
        {u"Fail", {i4Arg(5)}, static_cast<HRESULT>(0x800A0005), u"velkor6", VbError::describe(5)});
    // Binding errors: a missing argument, too many, one of the wrong type.
    cases.push_back(
        {u"Join", {}, static_cast<HRESULT>(0x800A01C1), u"velkor6", VbError::describe(449)});
    cases.push_back({u"Echo",
                     {i2Arg(1), i2Arg(2)},
                     static_cast<HRESULT>(0x800A01C2),
                     u"velkor6",
                     VbError::describe(450)});
    cases.push_back({u"Fail",
                     {bstrArg(u"x")},
                     static_cast<HRESULT>(0x800A000D),
                     u"velkor6",
                     VbError::describe(13)});
    for (Case& c : cases) {
        Call args(c.args);
        ScopedVariant result;
        EXCEPINFO info{};
        EXPECT_EQ(invoke(c.member, DISPATCH_METHOD, args, result, info), DISP_E_EXCEPTION);
        EXPECT_EQ(info.scode, c.scode) << toUtf8(c.description);
        EXPECT_EQ(fromBstr(info.bstrSource), c.source);
        EXPECT_EQ(fromBstr(info.bstrDescription), c.description);
        SysFreeString(info.bstrSource);
        SysFreeString(info.bstrDescription);
        SysFreeString(info.bstrHelpFile);
    }

    Call none({});
    ScopedVariant result;
    EXPECT_EQ(object_->Invoke(999, IID_NULL, 0, DISPATCH_METHOD, none.params(), result.get(),
                              nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
}

TEST_F(DispatchObjectTest, ObjectsPassedInComeBackAsTheSameObject) {
    VARIANT self;
    VariantInit(&self);
    V_VT(&self) = VT_DISPATCH;
    V_DISPATCH(&self) = ComPtr<IDispatch>(object_).detach();
    Call args({self});
    ScopedVariant result;
    EXCEPINFO info{};
    ASSERT_EQ(invoke(u"Echo", DISPATCH_METHOD, args, result, info), S_OK);
    ASSERT_EQ(V_VT(result.get()), VT_DISPATCH);
    // Members saw the library's own object, not a stranger's, and it still reaches the probe.
    const ObjectRef before = objectFor(object_.get());
    EXPECT_EQ(objectFor(V_DISPATCH(result.get())), before);
    probe_->text = u"changed";
    std::vector<Variant> none;
    EXPECT_EQ(before->call(u"Text", CallKind::PropertyGet, none), Variant(u"changed"));
}

TEST(DispatchObjectLifetime, ObjectsAreCountedUntilReleased) {
    EXPECT_TRUE(serverIdle());
    MemberIndex<Probe> index(probeMembers());
    IDispatch* object = DispatchObject<Probe>::create(
        std::make_shared<Probe>(), index, u"probe", probeInterface,
        std::make_shared<Module>(std::make_unique<Platform>(), Locale::englishUS()));
    EXPECT_FALSE(serverIdle());
    object->AddRef();
    EXPECT_EQ(object->Release(), 1u);
    EXPECT_EQ(object->Release(), 0u);
    EXPECT_TRUE(serverIdle());
}

} // namespace
} // namespace velkor6::com
