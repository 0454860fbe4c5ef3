#include "core/convert.h"
#include "fake/error_of.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

const Locale& us = Locale::englishUS();
const Locale& de = Locale::germanGermany();

class Named final : public Object {
public:
    std::u16string typeName() const override { return u"Form1"; }
    Variant call(std::u16string_view, CallKind, std::span<Variant>) override { return {}; }
};

TEST(Convert, WholeNumbersRoundHalfToEvenAndCheckTheirRange) {
    struct Case {
        Variant in;
        std::int32_t integer; // expected CInt, or the error number when error is set
        bool error;
    };
    const Case cases[] = {
        {0.5, 0, false},
        {1.5, 2, false},
        {2.5, 2, false},
        {-36.5, -36, false},
        {32767.49, 32767, false},
        {-32768.5, -32768, false},
        {32767.5, vberr::overflow, true},
        {-32768.51, vberr::overflow, true},
        {u"2.5", 2, false},
        {u" 3,000 ", 3000, false},
        {u"&HFFFF", -1, false},
        {u"40000", vberr::overflow, true},
        {true, -1, false},
        {Variant(), 0, false},
        {Date{2.75}, 3, false},
        {Currency{25000}, 2, false},
        {std::uint8_t{200}, 200, false},
        {std::int32_t{-32769}, vberr::overflow, true},
        {Variant::null(), vberr::invalidUseOfNull, true},
        {u"abc", vberr::typeMismatch, true},
        {u"", vberr::typeMismatch, true},
        {u"TRUE", vberr::typeMismatch, true},
        {Variant::missing(), vberr::typeMismatch, true},
        {Variant::array({}), vberr::typeMismatch, true},
        {Variant::nothing(), vberr::objectNotSet, true},
    };
    for (const auto& c : cases) {
        const std::u16string what = typeName(c.in);
        if (c.error)
            EXPECT_EQ(errorOf([&] { toInteger(c.in, us); }), c.integer) << toUtf8(what);
        else
            EXPECT_EQ(toInteger(c.in, us), c.integer) << toUtf8(what);
    }

    EXPECT_EQ(toLong(Variant(2147483647.49), us), 2147483647);
    EXPECT_EQ(errorOf([] { toLong(Variant(2147483647.5), us); }), vberr::overflow);
    EXPECT_EQ(toLong(Variant(u"1.234.567"), de), 1234567);
    EXPECT_EQ(toLong(Variant(u"&H10000"), us), 65536);
    EXPECT_EQ(toByte(Variant(255.49), us), 255);
    EXPECT_EQ(toByte(Variant(true), us), 255);
    EXPECT_EQ(toByte(Variant(-0.5), us), 0);
    EXPECT_EQ(errorOf([] { toByte(Variant(u"-1"), us); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { toByte(Variant(u"258"), us); }), vberr::overflow);
}

TEST(Convert, FloatingPointAndDates) {
    EXPECT_EQ(toDouble(Variant(u"1.234,5"), de), 1234.5);
    EXPECT_EQ(toDouble(Variant(Currency{15000}), us), 1.5);
    EXPECT_EQ(errorOf([] { toDouble(Variant(u"1e400"), us); }), vberr::overflow);
    EXPECT_EQ(toSingle(Variant(u"3.4028235e38"), us), 3.4028235e38f);
    EXPECT_EQ(errorOf([] { toSingle(Variant(1e39), us); }), vberr::overflow);

    EXPECT_EQ(toDate(Variant(std::int16_t{-1}), us), Date{-1});
    EXPECT_EQ(toDate(Variant(-657434.5), us), Date{-657434.5});
    EXPECT_EQ(toDate(Variant(u"1"), us), Date{1});
    EXPECT_EQ(errorOf([] { toDate(Variant(-657435.0), us); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { toDate(Variant(2958466.0), us); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { toDate(Variant(u"no date"), us); }), vberr::typeMismatch);
}

TEST(Convert, BooleansFromWordsAndNumbers) {
    struct Case {
        Variant in;
        bool value;
    };
    const Case cases[] = {
        {u"True", true},     {u"false", false},  {u"#TRUE#", true}, {u"#false#", false},
        {u"0", false},       {u"0.1", true},     {u"-1", true},     {0.0, false},
        {Currency{1}, true}, {Variant(), false}, {Date{0}, false},  {std::uint8_t{2}, true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(toBoolean(c.in, us), c.value) << toUtf8(toString(c.in, us));
    EXPECT_TRUE(toBoolean(Variant(u"0,5"), de));
    EXPECT_EQ(errorOf([] { toBoolean(Variant(u""), us); }), vberr::typeMismatch);
    EXPECT_EQ(errorOf([] { toBoolean(Variant(u"yes"), us); }), vberr::typeMismatch);
    EXPECT_EQ(errorOf([] { toBoolean(Variant::null(), us); }), vberr::invalidUseOfNull);
}

TEST(Convert, StringsAsCStrWritesThem) {
    EXPECT_EQ(toString(Variant(), us), u"");
    EXPECT_EQ(toString(Variant(true), de), u"True");
    EXPECT_EQ(toString(Variant(std::int32_t{-2147483647 - 1}), us), u"-2147483648");
    EXPECT_EQ(toString(Variant(1.5), de), u"1,5");
    EXPECT_EQ(toString(Variant(0.1f), us), u"0.1");
    EXPECT_EQ(toString(Variant(Currency{-12345}), de), u"-1,2345");
    EXPECT_EQ(errorOf([] { toString(Variant::null(), us); }), vberr::invalidUseOfNull);
    EXPECT_EQ(errorOf([] { toString(Variant::missing(), us); }), vberr::typeMismatch);
    EXPECT_EQ(errorOf([] { toString(Variant::array({}), us); }), vberr::typeMismatch);
}

TEST(Convert, ConvertToByTypeCode) {
    EXPECT_EQ(convertTo(Variant(2.5), VarType::Integer, us), Variant(std::int16_t{2}));
    EXPECT_EQ(convertTo(Variant(u"7"), VarType::Long, us), Variant(std::int32_t{7}));
    EXPECT_EQ(convertTo(Variant(u"0,5"), VarType::Single, de), Variant(0.5f));
    EXPECT_EQ(convertTo(Variant(std::int16_t{3}), VarType::Double, us), Variant(3.0));
    EXPECT_EQ(convertTo(Variant(1.5), VarType::Currency, us), Variant(Currency{15000}));
    EXPECT_EQ(convertTo(Variant(2.0), VarType::Date, us), Variant(Date{2}));
    EXPECT_EQ(convertTo(Variant(1.5), VarType::String, de), Variant(u"1,5"));
    EXPECT_EQ(convertTo(Variant(u"false"), VarType::Boolean, us), Variant(false));
    EXPECT_EQ(convertTo(Variant(std::int16_t{1}), VarType::Decimal, us).type(), VarType::Decimal);
    EXPECT_EQ(convertTo(Variant(u"17"), VarType::Byte, us), Variant(std::uint8_t{17}));
    EXPECT_EQ(convertTo(Variant(u"x"), VarType::Variant, us), Variant(u"x"));
    EXPECT_EQ(convertTo(Variant(u"x"), VarType::Object, us), Variant(u"x"));
    EXPECT_EQ(errorOf([] { convertTo(Variant(u"x"), VarType::Double, us); }), vberr::typeMismatch);
}

TEST(Convert, IsNumericIsDateAndTypeName) {
    EXPECT_TRUE(isNumeric(Variant(), us));
    EXPECT_FALSE(isNumeric(Variant::null(), us));
    EXPECT_FALSE(isNumeric(Variant(u"rwrf"), us));
    EXPECT_FALSE(isNumeric(Variant(u""), us));
    EXPECT_TRUE(isNumeric(Variant(u"$1,000"), us));
    EXPECT_FALSE(isNumeric(Variant(u"$1,000"), de));
    EXPECT_TRUE(isNumeric(Variant(true), us));
    EXPECT_TRUE(isNumeric(Variant(Currency{1}), us));
    EXPECT_FALSE(isNumeric(Variant(Date{1}), us));
    EXPECT_FALSE(isNumeric(Variant::array({Variant(1.0)}), us));
    EXPECT_TRUE(isDate(Variant(Date{1}), us));
    EXPECT_FALSE(isDate(Variant(1.0), us));
    EXPECT_FALSE(isDate(Variant(u"no date"), us));

    struct Case {
        Variant in;
        std::u16string_view name;
    };
    const Case names[] = {
        {Variant(), u"Empty"},
        {Variant::null(), u"Null"},
        {std::int16_t{1}, u"Integer"},
        {std::int32_t{1}, u"Long"},
        {1.0f, u"Single"},
        {1.0, u"Double"},
        {Currency{}, u"Currency"},
        {Date{}, u"Date"},
        {u"", u"String"},
        {true, u"Boolean"},
        {Decimal{}, u"Decimal"},
        {std::uint8_t{1}, u"Byte"},
        {Variant::missing(), u"Error"},
        {Variant::nothing(), u"Nothing"},
        {ObjectRef(std::make_shared<Named>()), u"Form1"},
        {Variant::array({}), u"Variant()"},
        {Variant::array({}, VarType::String), u"String()"},
    };
    for (const auto& c : names)
        EXPECT_EQ(typeName(c.in), c.name);
}

TEST(CompareVariants, NumbersByValueStringsByModeNumbersBeforeText) {
    struct Case {
        Variant a, b;
        int order;
    };
    Decimal pointOne = toDecimal(Variant(u"0.1"), us);
    const Case cases[] = {
        {std::int16_t{1}, 1.0, 0},
        {std::int32_t{2}, Currency{15000}, 1},
        {true, std::int16_t{-1}, 0},
        {Date{1}, 1.0, 0},
        {std::uint8_t{255}, std::int16_t{255}, 0},
        {pointOne, 0.1, 0},
        {toDecimal(Variant(u"0.3"), us), 0.1 + 0.2, 0},
        {pointOne, Currency{1000}, 0},
        {pointOne, std::int16_t{1}, -1},
        {Currency{INT64_MAX}, Currency{INT64_MAX - 1}, 1},
        {std::int16_t{5}, u"5", -1},
        {u"5", std::int16_t{5}, 1},
        {Date{1}, u"", -1},
        {Variant(), std::int16_t{0}, 0},
        {Variant(), -0.5, 1},
        {Variant(), u"", 0},
        {Variant(), u"a", -1},
        {Variant(), Variant(), 0},
        {u"b", u"a", 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(compareVariants(c.a, c.b, Compare::Binary, us), c.order)
            << toUtf8(typeName(c.a)) << " vs " << toUtf8(typeName(c.b));
    }
    EXPECT_EQ(compareVariants(Variant(u"abc"), Variant(u"ABC"), Compare::Text, us), 0);
    EXPECT_EQ(compareVariants(Variant(u"abc"), Variant(u"ABC"), Compare::Binary, us), 1);
    EXPECT_FALSE(compareVariants(Variant::null(), Variant(1.0), Compare::Binary, us));
    EXPECT_FALSE(compareVariants(Variant(u"a"), Variant::null(), Compare::Binary, us));
    EXPECT_EQ(
        errorOf([] { compareVariants(Variant::array({}), Variant(1.0), Compare::Binary, us); }),
        vberr::typeMismatch);
    EXPECT_EQ(
        errorOf([] { compareVariants(Variant(1.0), Variant::nothing(), Compare::Binary, us); }),
        vberr::typeMismatch);
}

} // namespace
} // namespace velkor6
