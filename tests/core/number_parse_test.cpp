#include "core/convert.h"

#include <cmath>
#include <gtest/gtest.h>
#include <span>

namespace velkor6 {
namespace {

struct Parsed {
    std::u16string_view text;
    double value;
};

void expectParses(std::span<const Parsed> cases, const Locale& loc) {
    for (const auto& c : cases) {
        const auto v = parseNumber(c.text, loc);
        ASSERT_TRUE(v.has_value()) << toUtf8(c.text);
        EXPECT_EQ(*v, c.value) << toUtf8(c.text);
    }
}

TEST(NumberParse, ReadsWhatTheAutomationParserReadsInEnglish) {
    const Parsed cases[] = {
        {u"\t12\r\n", 12},
        {u"5-", -5},
        {u" + 7", 7},
        {u"(3)", -3},
        {u"-$1.5", -1.5},
        {u"$-1.5", -1.5},
        {u"1.5$", 1.5},
        {u"($1,234.50)", -1234.5},
        {u"1,2,3", 123},
        {u"1.", 1},
        {u".5", 0.5},
        {u"0100", 100},
        {u"1e-1", 0.1},
        {u"1E+01", 10},
        {u"1,000.5e3", 1000500},
        {u"1e-400", 0},
        // Up to &HFFFF hex and octal read as Integers, so &H8000 on is negative.
        {u"&HF800", -2048},
        {u"&h0abcd", -21555},
        {u"&o0777", 511},
        {u"&H0FFFF", -1},
        {u"&H10000", 65536},
        {u"&HFFFFFFFF", -1},
        {u" &H7FFFFFFF ", 2147483647},
        // Digits beyond what a double holds are read, not rejected.
        {u"0.1000000000000000055511151231257827021181583404541015625", 0.1},
        {u"123456789012345678901234567890123456789012345678901234567890", 1.2345678901234568e59},
    };
    expectParses(cases, Locale::englishUS());
}

TEST(NumberParse, RejectsAnythingLeftOver) {
    const Locale& us = Locale::englishUS();
    const std::u16string_view bad[] = {
        u"",     u" ",   u"+ +0",  u"--1",  u"1-2",  u"()",    u"(1",          u"1)",
        u"-(1)", u"0x0", u"FE",    u"1.1.", u"1e1.", u"1e",    u"1e+",         u"-",
        u"$",    u"$$1", u"abc",   u"True", u"1 2",  u",5",    u"1,000.5,",    u"1.000,5",
        u"&H",   u"&HG", u"&H1.5", u"-&H1", u"&B1",  u"1e400", u"&H123456789",
    };
    for (const auto text : bad)
        EXPECT_FALSE(parseNumber(text, us).has_value()) << toUtf8(text);
}

TEST(NumberParse, GermanSeparatorsAndCurrency) {
    const Locale& de = Locale::germanGermany();
    const Parsed cases[] = {{u"1.234,5", 1234.5}, {u"1,23", 1.23},    {u"1.23", 123},
                            {u"€ 12,50", 12.5},   {u"12,50 €", 12.5}, {u"-1,5e2", -150}};
    expectParses(cases, de);
    EXPECT_FALSE(parseNumber(u"1,2,3", de));
    EXPECT_FALSE(parseNumber(u"$1", de));
}

TEST(NumberText, DoublesAsCStrWritesThem) {
    struct Written {
        double value;
        std::u16string_view us, de;
    };
    const Written cases[] = {
        {0.1 + 0.2, u"0.3", u"0,3"},
        {1.0 / 3, u"0.333333333333333", u"0,333333333333333"},
        {1e20, u"1E+20", u"1E+20"},
        {1.5e-7, u"1.5E-07", u"1,5E-07"},
        {1e15, u"1E+15", u"1E+15"},
        {123456789012345.0, u"123456789012345", u"123456789012345"},
        {0.0001, u"0.0001", u"0,0001"},
        {1e-5, u"1E-05", u"1E-05"},
        {-0.0, u"0", u"0"},
        {1e100, u"1E+100", u"1E+100"},
        {-1234567.25, u"-1234567.25", u"-1234567,25"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(doubleToText(c.value, Locale::englishUS()), c.us);
        EXPECT_EQ(doubleToText(c.value, Locale::germanGermany()), c.de);
    }
    EXPECT_EQ(singleToText(0.1f, Locale::englishUS()), u"0.1");
    EXPECT_EQ(singleToText(12345678.0f, Locale::englishUS()), u"1.234568E+07");
    EXPECT_EQ(singleToText(1234567.0f, Locale::englishUS()), u"1234567");
}

TEST(NumberText, TextReadsBackToTheSameNumber) {
    for (const Locale* loc : {&Locale::englishUS(), &Locale::germanGermany()}) {
        for (const double d : {0.1, -2.5e-12, 123456.789, 9.87654321e200, -1e-300}) {
            const auto back = parseNumber(doubleToText(d, *loc), *loc);
            ASSERT_TRUE(back.has_value());
            EXPECT_NEAR(*back, d, std::fabs(d) * 1e-14);
        }
    }
}

} // namespace
} // namespace velkor6
