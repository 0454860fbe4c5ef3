#include "fake/error_of.h"
#include "lib/dispatch.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6::dispatch {
namespace {

// A target of our own, so that binding is tested apart from the library's members.
struct Recorder {
    std::vector<Variant> seen;
};

Table<Recorder> table() {
    using T = VarType;
    Table<Recorder> t;
    t.push_back({1,
                 u"Join",
                 CallKind::Method,
                 {required(u"sText", T::String), optional(u"iCount", T::Integer, std::int16_t{2}),
                  optionalByRef(u"sOut", T::String, u"")},
                 T::String,
                 [](Recorder& r, Args& a) -> Variant {
                     r.seen.assign(&a[0], &a[0] + a.size());
                     std::u16string s;
                     for (int i = 0; i < a.i16(1); ++i)
                         s += a.str(0);
                     a.strRef(2) = s + u"!";
                     return s;
                 },
                 u"Repeats a text.",
                 u""});
    t.push_back({2,
                 u"Value",
                 CallKind::PropertyGet,
                 {required(u"iIndex", T::Long)},
                 T::Long,
                 [](Recorder&, Args& a) -> Variant { return a.i32(0) * 2; },
                 u"",
                 u""});
    t.push_back({2,
                 u"Value",
                 CallKind::PropertyLet,
                 {required(u"iIndex", T::Long), required(u"vNew", T::Variant)},
                 T::Empty,
                 [](Recorder& r, Args& a) -> Variant {
                     r.seen = {a[0], a[1]};
                     return {};
                 },
                 u"",
                 u""});
    t.push_back({3,
                 u"Sum",
                 CallKind::Method,
                 {byRef(u"vList", T::Array | T::Double)},
                 T::Double,
                 [](Recorder&, Args& a) -> Variant {
                     double sum = 0;
                     for (auto& v : a[0].array().items) {
                         sum += v.doubleValue();
                         v = Variant(0.0);
                     }
                     return sum;
                 },
                 u"",
                 u""});
    return t;
}

Variant call(Table<Recorder>& t, Recorder& r, std::u16string_view name, std::vector<Argument> args,
             CallKind kind = CallKind::Method) {
    return invoke(t, r, name, kind, args, Locale::englishUS());
}

TEST(Dispatch, BindsPositionalNamedOmittedAndByRef) {
    auto t = table();
    Recorder r;
    Variant text(u"ab"), count(2.5), out;
    // Case-insensitive name; a Double rounds half to even into an Integer; ByRef written back.
    EXPECT_EQ(call(t, r, u"JOIN", {{&text, u""}, {&count, u""}, {&out, u""}}), Variant(u"abab"));
    EXPECT_EQ(out, Variant(u"abab!"));
    EXPECT_EQ(r.seen[1], Variant(std::int16_t{2}));

    // Named arguments in any order and case; an omitted optional takes its default.
    Variant three(u"3"), later;
    EXPECT_EQ(call(t, r, u"Join", {{&three, u"ICOUNT"}, {&text, u"sText"}}), Variant(u"ababab"));
    Variant missing = Variant::missing();
    EXPECT_EQ(call(t, r, u"Join", {{&text, u""}, {&missing, u""}, {&later, u""}}),
              Variant(u"abab"));
    EXPECT_EQ(later, Variant(u"abab!"));
    // A ByRef argument passed as Missing is not written back.
    Variant missingOut = Variant::missing();
    call(t, r, u"Join", {{&text, u""}, {&count, u""}, {&missingOut, u""}});
    EXPECT_TRUE(missingOut.isMissing());
}

TEST(Dispatch, RaisesVbErrorsForBadCalls) {
    auto t = table();
    Recorder r;
    Variant text(u"ab"), big(40000), word(u"many"), nul = Variant::null(), arr = Variant::array({});
    EXPECT_EQ(errorOf([&] { call(t, r, u"Nope", {}); }), vberr::noSuchMember);
    EXPECT_EQ(errorOf([&] { call(t, r, u"Join", {}); }), vberr::argumentNotOptional);
    Variant two(std::int16_t{2});
    EXPECT_EQ(errorOf([&] {
                  call(t, r, u"Join", {{&two, u"iCount"}});
              }),
              vberr::argumentNotOptional);
    EXPECT_EQ(errorOf([&] { call(t, r, u"Join", {{&text, u""}, {&big, u""}}); }), vberr::overflow);
    EXPECT_EQ(errorOf([&] {
                  call(t, r, u"Join", {{&text, u""}, {&word, u""}});
              }),
              vberr::typeMismatch);
    EXPECT_EQ(errorOf([&] { call(t, r, u"Join", {{&nul, u""}}); }), vberr::typeMismatch);
    EXPECT_EQ(errorOf([&] { call(t, r, u"Join", {{&arr, u""}}); }), vberr::typeMismatch);
    EXPECT_EQ(errorOf([&] {
                  call(t, r, u"Join", {{&text, u"sWhat"}});
              }),
              vberr::namedArgumentNotFound);
    EXPECT_EQ(errorOf([&] {
                  call(t, r, u"Join", {{&text, u""}, {&text, u"sText"}});
              }),
              vberr::wrongArgumentCount);
    EXPECT_EQ(errorOf([&] {
                  call(t, r, u"Join", {{&text, u""}, {&two, u""}, {&text, u""}, {&text, u""}});
              }),
              vberr::wrongArgumentCount);
    EXPECT_EQ(errorOf([&] { call(t, r, u"Sum", {{&text, u""}}); }), vberr::typeMismatch);

    // A conversion error tells which parameter it was, named or positional; the error itself
    // is the plain one.
    for (auto args : {std::vector<Argument>{{&text, u""}, {&word, u""}},
                      std::vector<Argument>{{&big, u"iCount"}, {&text, u"sText"}}}) {
        try {
            call(t, r, u"Join", args);
            ADD_FAILURE() << "no error";
        } catch (const ArgumentError& e) {
            EXPECT_EQ(e.param(), 1u);
            EXPECT_EQ(e.source(), u"velkor6");
            EXPECT_EQ(e.description(), VbError::describe(e.number()));
        }
    }
}

TEST(Dispatch, PropertiesAndArrays) {
    auto t = table();
    Recorder r;
    Variant index(std::int16_t{21}), value(u"v");
    // A method call reaches a property get, as late-bound clients send both flags.
    EXPECT_EQ(call(t, r, u"value", {{&index, u""}}), Variant(42));
    EXPECT_EQ(call(t, r, u"Value", {{&index, u""}, {&value, u""}}, CallKind::PropertyLet),
              Variant());
    EXPECT_EQ(r.seen[0], Variant(21));
    EXPECT_EQ(r.seen[1], Variant(u"v"));

    // Array elements are coerced to the declared element type and written back.
    Variant list = Variant::array({Variant(std::int16_t{1}), Variant(u"2.5")});
    EXPECT_EQ(call(t, r, u"Sum", {{&list, u""}}), Variant(3.5));
    EXPECT_EQ(list.array().element, VarType::Double);
    EXPECT_EQ(list.array().items[1], Variant(0.0));
}

} // namespace
} // namespace velkor6::dispatch
