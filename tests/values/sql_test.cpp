#include "fake/error_of.h"
#include "values/sql.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6::values {
namespace {

const Date today{45000};
const double march15 = 45366; // 2024-03-15

TEST(ValuesSql, DateLiteralsIgnoreTheLocaleSeparators) {
    for (const Locale* loc : {&Locale::germanGermany(), &Locale::englishUS()}) {
        auto desktop = [&](const Variant& v) { return sqlDate(v, false, *loc, today); };
        auto server = [&](const Variant& v) { return sqlDate(v, true, *loc, today); };
        EXPECT_EQ(desktop(Variant(Date{march15})), u"#2024/03/15#");
        EXPECT_EQ(desktop(Variant(Date{march15 + 0.5})), u"#2024/03/15 12:00:00#");
        EXPECT_EQ(desktop(Variant(Date{march15 + 0.75})), u"#2024/03/15 18:00:00#");
        EXPECT_EQ(desktop(Variant(march15 + 0.5)), u"#2024/03/15 12:00:00#"); // a plain Double
        EXPECT_EQ(desktop(Variant()), u"#2023/03/15#"); // Empty reads as 0: today's date
        EXPECT_EQ(server(Variant(Date{march15})), u"CONVERT(DATETIME, '2024-03-15 00:00:00', 102)");
        EXPECT_EQ(server(Variant(Date{march15 + 0.5729166666666666})),
                  u"CONVERT(DATETIME, '2024-03-15 13:45:00', 102)");
        EXPECT_EQ(server(Variant::null()), u"CONVERT(DATETIME, '', 102)");
        EXPECT_EQ(errorOf([&] { desktop(Variant::null()); }), vberr::invalidUseOfNull);
        EXPECT_EQ(errorOf([&] { desktop(Variant(u"no date")); }), vberr::typeMismatch);
        EXPECT_EQ(desktop(Variant(u"2024-03-15 12:00")), u"#2024/03/15 12:00:00#");
        EXPECT_EQ(desktop(Variant(u"2024-03-15")), u"#2024/03/15#");
    }
}

TEST(ValuesSql, NumberLiteralsUseAPointInEveryLocale) {
    const Locale& de = Locale::germanGermany();
    const Locale& us = Locale::englishUS();
    EXPECT_EQ(sqlDouble(Variant(1234.5), de), u"1234.5");
    EXPECT_EQ(sqlDouble(Variant(1234.5), us), u"1234.5");
    EXPECT_EQ(sqlDouble(Variant(u"1.234,5"), de), u"1234.5");
    EXPECT_EQ(sqlDouble(Variant(Currency{125000}), de), u"12.5");
    EXPECT_EQ(sqlDouble(Variant(std::int16_t{-7}), de), u"-7");
    EXPECT_EQ(sqlDouble(Variant(true), us), u"-1");
    for (const Variant& blank : {Variant(), Variant::null(), Variant(u"")})
        EXPECT_EQ(sqlDouble(blank, de), u"0");
    EXPECT_EQ(sqlDouble(Variant(u"abc"), us), u"abc"); // kept as typed, never quoted
    EXPECT_EQ(sqlDouble(Variant::array({Variant(1.0)}), us), u"");
}

TEST(ValuesSql, FilterJoinsPairsByTheirValueType) {
    const Variant pairs = Variant::array({Variant(u"Name"), Variant(u"Smith"), Variant(u"Active"),
                                          Variant(true), Variant(u"Amount"), Variant(12.5)});
    for (const Locale* loc : {&Locale::germanGermany(), &Locale::englishUS()})
        EXPECT_EQ(sqlFilter(pairs.array(), *loc, today),
                  u"Name=\"Smith\" AND Active=TRUE AND Amount=12.5");

    const Locale& de = Locale::germanGermany();
    const Variant mixed = Variant::array(
        {Variant(u"Since"), Variant(Date{march15}), Variant(u"Off"), Variant(false),
         Variant(u"Note"), Variant::null(), Variant(std::int32_t{7}), Variant(u"x")});
    EXPECT_EQ(sqlFilter(mixed.array(), de, today),
              u"Since=#2024/03/15# AND Off=FALSE AND Note=0 AND 7=\"x\"");
    // Embedded quotes are passed through as they are.
    EXPECT_EQ(sqlFilter(Variant::array({Variant(u"A"), Variant(u"say \"hi\"")}).array(), de, today),
              u"A=\"say \"hi\"\"");

    VariantArray oneBased;
    oneBased.bounds = {{1, 2}};
    oneBased.items = {Variant(u"Id"), Variant(std::int32_t{3})};
    EXPECT_EQ(sqlFilter(oneBased, de, today), u"Id=3");

    EXPECT_EQ(sqlFilter(Variant::array({Variant(u"Name")}).array(), de, today), u"");
    EXPECT_EQ(sqlFilter(Variant::array({}).array(), de, today), u"");
    EXPECT_EQ(sqlFilter(VariantArray{}, de, today), u""); // never dimensioned
    const Variant odd = Variant::array({Variant(u"A"), Variant(1.0), Variant(u"B")});
    EXPECT_EQ(errorOf([&] { sqlFilter(odd.array(), de, today); }), vberr::subscriptOutOfRange);
}

} // namespace
} // namespace velkor6::values
