#include "fake/error_of.h"
#include "platform/ansi.h"
#include "values/value_codes.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace velkor6::values {
namespace {

TEST(NumberCodes, RoundTripEveryLong) {
    constexpr std::int32_t lo = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t hi = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(longToCode(0), u"0");
    EXPECT_EQ(longToCode(35), u"Z");
    EXPECT_EQ(longToCode(36), u"10");
    EXPECT_EQ(longToCode(-1), u"-1");
    EXPECT_EQ(longToCode(hi), u"ZIK0ZJ");
    EXPECT_EQ(longToCode(lo), u"-ZIK0ZK");
    for (const std::int32_t v : {lo, lo + 1, -36, -35, -1, 0, 1, 35, 36, hi - 1, hi})
        EXPECT_EQ(codeToLong(longToCode(v)), v);
    // A stride through the whole range, prime so that it meets every digit position.
    for (std::int64_t v = lo; v <= hi; v += 65537) {
        const std::u16string code = longToCode(static_cast<std::int32_t>(v));
        ASSERT_EQ(codeToLong(code), v) << v;
        ASSERT_LE(code.size(), 7u);
    }
    EXPECT_EQ(codeToLong(u"zz"), 1295);
    EXPECT_EQ(codeToLong(u"-0"), 0);
    EXPECT_EQ(codeToLong(u"000ZIK0ZJ"), hi);

    for (const auto* bad : {u"", u"-", u" 1", u"1 ", u"+1", u"1-", u"A_B", u"--1", u"\u00c4"})
        EXPECT_EQ(errorOf([&] { codeToLong(bad); }), vberr::typeMismatch);
    for (const auto* big : {u"ZIK0ZK", u"-ZIK0ZL", u"ZZZZZZZZZZZZZZZZZZ", u"10000000"})
        EXPECT_EQ(errorOf([&] { codeToLong(big); }), vberr::overflow);
    EXPECT_EQ(errorOf([&] { codeToLong(u"ZZZZZZZZZZ!"); }), vberr::typeMismatch);
}

void expectSettingsSafe(std::u16string_view code) {
    for (const char16_t c : code) {
        ASSERT_TRUE((c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') ||
                    (c >= u'0' && c <= u'9') || c == u'-' || c == u'_');
    }
}

TEST(Scrambling, RoundTripsEveryTextAndSurvivesASettingsFile) {
    EXPECT_EQ(scrambleText(u""), u"");
    EXPECT_EQ(unscrambleText(u""), u"");
    std::string every;
    for (int b = 0; b < 256; ++b) {
        every += static_cast<char>(b);
        const std::u16string one = fromAnsi(std::string(1, static_cast<char>(b)));
        const std::u16string code = scrambleText(one);
        expectSettingsSafe(code);
        EXPECT_EQ(unscrambleText(code), one) << b;
    }
    const std::u16string ansi = fromAnsi(every);
    EXPECT_EQ(unscrambleText(scrambleText(ansi)), ansi);

    std::mt19937 rng(14);
    for (int round = 0; round < 500; ++round) {
        std::u16string text(std::uniform_int_distribution<int>(1, 40)(rng), u'\0');
        for (char16_t& c : text) // any code unit, lone surrogates too
            c = static_cast<char16_t>(std::uniform_int_distribution<int>(0, 0xFFFF)(rng));
        const std::u16string code = scrambleText(text);
        expectSettingsSafe(code);
        ASSERT_EQ(unscrambleText(code), text);
    }

    // Not readable: no character of the text shows, repeats do not repeat.
    const std::u16string code = scrambleText(u"aaaaaaaaaaaaaaaa");
    EXPECT_EQ(code.find(u"aa"), std::u16string::npos);
    EXPECT_NE(scrambleText(u"Geheim1").substr(0, 4), scrambleText(u"Geheim2").substr(0, 4));
}

TEST(Scrambling, RejectsTextsItCannotHaveWritten) {
    const std::u16string code = scrambleText(u"Passwort");
    auto rejected = [](std::u16string_view s) {
        try {
            unscrambleText(s);
        } catch (const VbError& e) {
            return e.number() == vberr::library && e.source() == u"velkor6.vkrDecryptedValue";
        }
        return false;
    };
    EXPECT_TRUE(rejected(u"Passwort"));
    EXPECT_TRUE(rejected(code.substr(0, code.size() - 1)));
    EXPECT_TRUE(rejected(code + u"A"));
    EXPECT_TRUE(rejected(u"a;b="));
    EXPECT_TRUE(rejected(u"AAAA"));
    int caught = 0;
    for (std::size_t i = 0; i < code.size(); ++i) {
        std::u16string changed = code;
        changed[i] = changed[i] == u'B' ? u'C' : u'B';
        caught += rejected(changed) ? 1 : 0;
    }
    EXPECT_GE(caught, static_cast<int>(code.size()) - 1);
}

} // namespace
} // namespace velkor6::values
