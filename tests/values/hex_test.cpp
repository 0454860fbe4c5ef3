#include "fake/error_of.h"
#include "values/hex.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6::values {
namespace {

const Locale& us() {
    return Locale::englishUS();
}

TEST(ValuesHex, ReadsTextBytesAndOtherValuesAsLong) {
    struct Case {
        Variant value;
        std::int32_t expected;
    };
    const Case cases[] = {
        {Variant(u"FF"), 255},
        {Variant(u"ff"), 255},
        {Variant(u"FFFF"), 65535},
        {Variant(u"FFFFFFFF"), -1},
        {Variant(u"7FFFFFFF"), 2147483647},
        {Variant(u"00000000FF"), 255}, // leading zeros do not count toward the width
        {Variant(u"12G4"), 18},        // reading stops at the first non-digit
        {Variant(u"Hello"), 0},
        {Variant(u""), 0},
        {Variant(u"123456789"), 0},       // wider than 32 bits
        {Variant(u"x\u0001\u0002"), 513}, // raw bytes, last character most significant
        {Variant(u"X\u00FF"), 255},
        {Variant(u"x\u20AC"), 128}, // the euro sign is byte 0x80 in the ANSI code page
        {Variant(u"x\u4E00"), 63},  // no ANSI byte: read as "?"
        {Variant(u"x"), 0},
        {Variant(std::int16_t{-1}), 65535}, // Hex keeps an Integer's 16 bits
        {Variant(std::int32_t{-1}), -1},
        {Variant(true), 65535},
        {Variant(std::uint8_t{200}), 200},
        {Variant(255.5), 256}, // Hex rounds half to even first
        {Variant(254.5), 254},
        {Variant(3e10), 0}, // beyond a Long
        {Variant::null(), 0},
        {Variant(), 0},
        {Variant::array({Variant(u"FF")}), 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(hexToLong(c.value, us()), c.expected) << ::testing::PrintToString(c.expected);
}

TEST(ValuesHex, WideNumbersSplitAtTwentyFourBits) {
    EXPECT_DOUBLE_EQ(hexToDouble(u"1000000"), 16777216);
    EXPECT_DOUBLE_EQ(hexToDouble(u"&HFF"), 255);
    EXPECT_DOUBLE_EQ(hexToDouble(u"&HFF&"), 255);
    EXPECT_DOUBLE_EQ(hexToDouble(u"&hFF"), 0); // a lower-case h spoils the number
    EXPECT_DOUBLE_EQ(hexToDouble(u""), 0);
    EXPECT_DOUBLE_EQ(hexToDouble(u"10000000000000"), 4503599627370496.0); // 2^52
    EXPECT_DOUBLE_EQ(hexToDouble(u"FFFFFFFFFFFFFF"), -1); // the high part is a signed Long
    EXPECT_EQ(errorOf([] { hexToDouble(u"100000000000000"); }), vberr::overflow);

    EXPECT_EQ(doubleToHex(16777216, 0), u"1000000");
    EXPECT_EQ(doubleToHex(255, 4), u"00FF");
    EXPECT_EQ(doubleToHex(255, 1), u"FF"); // never cut
    EXPECT_EQ(doubleToHex(0, 0), u"0");
    EXPECT_EQ(doubleToHex(4294967296.0, 0), u"100000000");
    EXPECT_EQ(doubleToHex(16777216.0 * 255 + 10, 0), u"FF00000A");
    EXPECT_EQ(doubleToHex(-1, 0), u"FFFFFF"); // the high part -1 is not written
    EXPECT_EQ(doubleToHex(254.5, 0), u"FE");
    // 2^55: the high part exceeds a Long.
    EXPECT_EQ(errorOf([] { doubleToHex(36028797018963968.0, 0); }), vberr::overflow);

    for (double d : {0.0, 1.0, 16777215.0, 16777217.0, 123456789012.0, 9007199254740991.0})
        EXPECT_DOUBLE_EQ(hexToDouble(doubleToHex(d, 0)), d) << d;
}

} // namespace
} // namespace velkor6::values
