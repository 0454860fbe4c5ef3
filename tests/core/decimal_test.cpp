#include "core/convert.h"
#include "fake/error_of.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

const Locale& us = Locale::englishUS();

Decimal dec(std::u16string_view text) {
    return toDecimal(Variant(text), us);
}

TEST(DecimalValue, ReadsTextExactlyUpToItsRange) {
    struct Case {
        std::u16string_view in, out;
    };
    const Case cases[] = {
        {u"79228162514264337593543950335", u"79228162514264337593543950335"},
        {u"-79228162514264337593543950335", u"-79228162514264337593543950335"},
        {u"0.0000000000000000000000000001", u"0.0000000000000000000000000001"},
        {u"1.2345678901234567890123456789", u"1.2345678901234567890123456789"},
        // More digits than fit: rounded half to even at the last place that fits.
        {u"12345678901234567890.123456789012", u"12345678901234567890.123456789"},
        // Rounding up at 28 places would pass 2^96, so one place fewer.
        {u"7.92281625142643375935439503355", u"7.922816251426433759354395034"},
        {u"0.00000000000000000000000000015", u"0.0000000000000000000000000002"},
        {u"0.00000000000000000000000000005", u"0"},
        {u"1.50", u"1.5"},
        {u"-0", u"0"},
        {u"1e5", u"100000"},
        {u"&HFFFF", u"-1"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(decimalToText(dec(c.in), us), c.out) << toUtf8(c.in);
    }
    EXPECT_EQ(decimalToText(dec(u"1234,5"), us), u"12345");
    EXPECT_EQ(decimalToText(toDecimal(Variant(u"1234,5"), Locale::germanGermany()),
                            Locale::germanGermany()),
              u"1234,5");
    EXPECT_EQ(errorOf([] { dec(u"79228162514264337593543950336"); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { dec(u"79228162514264337593543950335.5"); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { dec(u"1e29"); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { dec(u"x"); }), vberr::typeMismatch);
}

TEST(DecimalValue, ConvertsFromAndToOtherNumbers) {
    EXPECT_EQ(decimalToText(decimalFromDouble(0.1), us), u"0.1");
    EXPECT_EQ(decimalToText(decimalFromDouble(1.0 / 3), us), u"0.333333333333333");
    EXPECT_EQ(decimalToText(decimalFromDouble(-1234.5678), us), u"-1234.5678");
    EXPECT_EQ(decimalToText(decimalFromDouble(1e-30), us), u"0");
    EXPECT_EQ(decimalToText(toDecimal(Variant(0.1f), us), us), u"0.1");
    EXPECT_EQ(errorOf([] { decimalFromDouble(1e29); }), vberr::overflow);

    EXPECT_EQ(decimalToDouble(dec(u"79228162514264337593543950335")), 7.9228162514264338e28);
    EXPECT_EQ(decimalToDouble(dec(u"-0.1")), -0.1);

    EXPECT_EQ(decimalToText(toDecimal(Variant(Currency{-15}), us), us), u"-0.0015");
    EXPECT_EQ(decimalToText(toDecimal(Variant(std::int32_t{-2147483647 - 1}), us), us),
              u"-2147483648");
    EXPECT_EQ(decimalToText(toDecimal(Variant(true), us), us), u"-1");

    // Integer targets round half to even, Currency at its fourth decimal.
    EXPECT_EQ(toInteger(Variant(dec(u"2.5")), us), 2);
    EXPECT_EQ(toInteger(Variant(dec(u"3.5")), us), 4);
    EXPECT_EQ(toInteger(Variant(dec(u"2.5000000000000000000000000001")), us), 3);
    EXPECT_EQ(toLong(Variant(dec(u"-2147483648.5")), us), -2147483647 - 1);
    EXPECT_EQ(errorOf([] { toLong(Variant(dec(u"2147483647.5")), us); }), vberr::overflow);
    EXPECT_EQ(toCurrency(Variant(dec(u"0.00025")), us), Currency{2});
    EXPECT_EQ(toCurrency(Variant(dec(u"0.00035")), us), Currency{4});
    EXPECT_EQ(toDouble(Variant(dec(u"1.5")), us), 1.5);
    EXPECT_FALSE(toBoolean(Variant(dec(u"0")), us));
}

TEST(CurrencyValue, RoundsAtTheFourthDecimalWithinItsRange) {
    EXPECT_EQ(toCurrency(Variant(0.000149), us), Currency{1});
    EXPECT_EQ(toCurrency(Variant(2147483647.99), us), Currency{21474836479900});
    EXPECT_EQ(toCurrency(Variant(u"0.00025"), us), Currency{2});
    EXPECT_EQ(toCurrency(Variant(u"922337203685477.5807"), us), Currency{INT64_MAX});
    EXPECT_EQ(toCurrency(Variant(u"-922337203685477.5808"), us), Currency{INT64_MIN});
    EXPECT_EQ(toCurrency(Variant(u"1.234,5"), Locale::germanGermany()), Currency{12345000});
    EXPECT_EQ(toCurrency(Variant(std::int32_t{-7}), us), Currency{-70000});
    EXPECT_EQ(errorOf([] { toCurrency(Variant(u"922337203685477.5808"), us); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { toCurrency(Variant(1e15), us); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { toCurrency(Variant(u"FALSE"), us); }), vberr::typeMismatch);

    EXPECT_EQ(currencyToText(Currency{INT64_MIN}, us), u"-922337203685477.5808");
    EXPECT_EQ(currencyToText(Currency{15000}, Locale::germanGermany()), u"1,5");
    EXPECT_EQ(currencyToText(Currency{-1}, us), u"-0.0001");
    EXPECT_EQ(currencyToDouble(Currency{-25000}), -2.5);
    EXPECT_EQ(toInteger(Variant(Currency{25000}), us), 2);
    EXPECT_EQ(toInteger(Variant(Currency{-35000}), us), -4);
}

} // namespace
} // namespace velkor6
