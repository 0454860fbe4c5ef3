#include "fake/error_of.h"
#include "values/numbers.h"
#include "values/typed_conversion.h"
#include "velkor6/vb_error.h"

#include <climits>
#include <gtest/gtest.h>

namespace velkor6::values {
namespace {

const Locale& de = Locale::germanGermany();
const Locale& us = Locale::englishUS();

TEST(ValuesLenientNumber, DropsStrayCharactersAndSurplusSeparators) {
    struct Case {
        const Locale& loc;
        std::u16string_view text;
        double expected;
    };
    const Case cases[] = {
        {de, u"EUR 1.234,50", 1234.5},
        {de, u"12,5,", 12.5}, // trailing separator dropped
        {de, u",,5", 0.5},    // leading separator dropped
        {de, u"1,2,3", 12.3}, // the first one taken for a grouping mark
        {de, u"1.234.567,89", 1234567.89},
        {de, u"", 0},
        {de, u"-", 0},
        {de, u"  -42 kg", -42},
        {de, u"5-", -5},  // trailing sign
        {de, u"1e5", 15}, // the exponent letter is not kept
        {us, u"$1,234.50", 1234.5},
        {us, u"1.2.3", 12.3},
        {us, u"12,5", 125},       // the comma is a grouping mark here
        {us, u"EUR 1.234,50", 0}, // grouping after the decimal point does not read
        {us, u"..", 0},
    };
    for (const Case& c : cases)
        EXPECT_DOUBLE_EQ(lenientNumber(c.text, c.loc), c.expected)
            << std::string(c.text.begin(), c.text.end()) << " in " << (&c.loc == &de ? "de" : "us");

    // Many separators are handled in one pass, not one rescan per separator.
    std::u16string many(200000, u',');
    many += u"7";
    EXPECT_DOUBLE_EQ(lenientNumber(many, de), 0.7);
}

TEST(ValuesTypedConversion, BlankGivesTheTypeDefaultOtherwiseConvertsOrKeepsTheValue) {
    const Date today{45366};
    auto conv = [&](int code, const Variant& v, const Locale& loc = de) {
        return typedConversion(code, v, loc, today);
    };
    for (int code : {2, 3, 4, 5, 6, 14, 17}) {
        EXPECT_EQ(conv(code, Variant::null()), Variant(std::int16_t{0})) << code;
        EXPECT_EQ(conv(code, Variant(u"")), Variant(std::int16_t{0})) << code;
    }
    EXPECT_EQ(conv(7, Variant(u"")), Variant(today));
    EXPECT_EQ(conv(8, Variant()), Variant(u""));
    EXPECT_EQ(conv(11, Variant()), Variant(false));
    EXPECT_EQ(conv(9, Variant::null()), Variant::null());
    EXPECT_EQ(conv(12, Variant()), Variant::null());

    EXPECT_EQ(conv(3, Variant(u"12"), us), Variant(std::int32_t{12}));
    EXPECT_EQ(conv(2, Variant(2.5), us), Variant(std::int16_t{2})); // half to even
    EXPECT_EQ(conv(5, Variant(u"1,5"), de), Variant(1.5));
    EXPECT_EQ(conv(8, Variant(1.5), de), Variant(u"1,5"));
    EXPECT_EQ(conv(11, Variant(std::int32_t{3}), us), Variant(true));
    EXPECT_EQ(conv(7, Variant(45366.5), us), Variant(Date{45366.5}));
    // Conversions that fail raise nothing and return the value as it was.
    EXPECT_EQ(conv(3, Variant(u"abc"), us), Variant(u"abc"));
    EXPECT_EQ(conv(2, Variant(40000.0), us), Variant(40000.0));
    EXPECT_EQ(conv(7, Variant(u"no date"), us), Variant(u"no date"));
    EXPECT_EQ(conv(12, Variant(std::int32_t{5}), us), Variant(std::int32_t{5}));
    EXPECT_EQ(conv(99, Variant(u"x"), us), Variant(u"x"));
}

TEST(ValuesRound, RoundsHalfAwayFromZeroAndKeepsTheType) {
    EXPECT_EQ(roundValue(Variant(2.5), 0, us), Variant(3.0));
    EXPECT_EQ(roundValue(Variant(-2.5), 0, us), Variant(-3.0));
    EXPECT_EQ(roundValue(Variant(2.675), 2, us), Variant(2.68));
    EXPECT_EQ(roundValue(Variant(2.675), 2, de),
              Variant(2.68)); // formats and reads back with ","
    EXPECT_EQ(roundValue(Variant(1.25f), 1, us), Variant(1.3f));
    EXPECT_EQ(roundValue(Variant(Currency{12345}), 0, de), Variant(Currency{10000}));
    EXPECT_EQ(roundValue(Variant(Currency{-15000}), 0, us), Variant(Currency{-20000}));
    EXPECT_EQ(roundValue(Variant(std::int16_t{7}), 2, us), Variant(std::int16_t{7}));
    // Not rounded: other types and negative places.
    EXPECT_EQ(roundValue(Variant(u"2.5"), 0, us), Variant(u"2.5"));
    EXPECT_EQ(roundValue(Variant(Date{1.5}), 0, us), Variant(Date{1.5}));
    EXPECT_EQ(roundValue(Variant(std::uint8_t{3}), 0, us), Variant(std::uint8_t{3}));
    EXPECT_EQ(roundValue(Variant(2.5), -1, us), Variant(2.5));
    EXPECT_EQ(roundValue(Variant::null(), 0, us), Variant::null());
}

TEST(ValuesFraction, SearchesDenominatorsFromTwoToSixtyFour) {
    struct Case {
        float value;
        Fraction expected;
    };
    const Case cases[] = {
        {0.5f, {1, 2}},
        {1.0f, {0, 0}},
        {2.0f, {4, 2}},
        {0.0f, {0, 2}},
        {-0.5f, {-1, 2}},
        {0.2f, {1, 5}},
        {1e10f, {0, 0}}, // beyond a Long
        // No denominator fits: the smallest remainder wins, not the nearest fraction.
        {0.3333f, {21, 64}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(approximateFraction(c.value), c.expected) << c.value;
}

TEST(ValuesCompare, ToleranceAndBits) {
    EXPECT_TRUE(withinTolerance(1.05f, 1.0f, 0.1f));
    EXPECT_FALSE(withinTolerance(1.2f, 1.0f, 0.1f));
    EXPECT_TRUE(withinTolerance(0.9f, 1.0f, 0.1f));
    EXPECT_TRUE(withinTolerance(1.0f, 1.0f, 0.0f));
    EXPECT_FALSE(withinTolerance(1.0f, 1.0f, -0.1f));
    EXPECT_EQ(errorOf([] { withinTolerance(0.0f, 3e38f, 3e38f); }), vberr::overflow);

    EXPECT_TRUE(hasAllBits(7, 5));
    EXPECT_FALSE(hasAllBits(4, 5));
    EXPECT_TRUE(hasAllBits(0, 0));
    EXPECT_TRUE(hasAllBits(-1, INT_MIN));
    EXPECT_FALSE(hasAllBits(INT_MAX, INT_MIN));
}

} // namespace
} // namespace velkor6::values
