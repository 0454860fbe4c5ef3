#include "text/text_lib.h"

#include <gtest/gtest.h>
#include <string>

namespace velkor6::text {
namespace {

TEST(TextSigns, TellsWhetherATermLiesInsideASignPair) {
    struct Case {
        std::u16string_view source, signs;
        std::int16_t start, length;
        bool expected;
    };
    const Case cases[] = {
        {u"say 'hi' now", u"''", 6, 2, true},
        {u"f(x)", u"()", 3, 1, true},
        {u"'a'", u"''", 1, 1, false},     // a term at position 1
        {u"'a'", u"''", 2, 2, false},     // nor ending at the last character
        {u"'a' 'b'", u"''", 4, 1, false}, // between two literals
        {u"''a''", u"''", 3, 1, false},   // an even number of quotes on each side
        {u"(a (b) c)", u"()", 8, 1, true},
        {u"(a (b) c)", u"()", 3, 1, true},
        {u"a (b) c d", u"()", 7, 1, false},
        {u")x(", u"()", 2, 1, true}, // counters of -1 are odd too
        {u"f(x)", u"(", 3, 1, false},
        {u"f(x)", u"()", 3, 0, false},
        {u"", u"()", 1, 1, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(members().vkrIsInSigns(c.source, c.signs, c.start, c.length), c.expected)
            << std::string(c.source.begin(), c.source.end()) << " " << c.start;
}

TEST(TextSigns, RecognisesNumericWordsAndFormatMasks) {
    const Locale& en = Locale::englishUS();
    const Locale& de = Locale::germanGermany();
    struct Case {
        std::u16string_view source;
        std::int16_t start, length;
        const Locale& locale;
        bool expected;
    };
    const Case cases[] = {
        {u"(1.5)", 2, 3, en, true},
        {u"1.5)", 1, 3, en, false},  // no delimiter before the word
        {u"(1.5x", 2, 3, en, false}, // nor after it
        {u"x (#,##0) y", 5, 1, en, true},
        {u"x (0.00) y", 4, 1, en, true},
        {u"x (,.,) y", 4, 1, en, false},
        {u"x (1,234.5) y", 5, 1, en, true},
        {u"x (1.234,5) y", 5, 1, de, true},
        {u"x (-1) y", 5, 1, en, false}, // a number, but not beginning with a digit
        {u"x (a1) y", 5, 1, en, false},
        {u"x (1) y", 4, 0, en, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(members(c.locale).vkrIsNumericWord(c.source, c.start, c.length), c.expected)
            << std::string(c.source.begin(), c.source.end());
}

TEST(TextMid, ReadsAndRewritesLikeMid) {
    EXPECT_EQ(members().vkrMid(u"abcdef", 2, 3), u"bcd");
    EXPECT_EQ(members().vkrMid(u"abcdef", 5), u"ef");
    EXPECT_EQ(members().vkrMid(u"abcdef", 0), u"");
    EXPECT_EQ(members().vkrMid(u"abcdef", 2, -2), u"");
    struct Case {
        std::int32_t start, length;
        std::u16string_view value, expected;
    };
    const Case cases[] = {
        {2, 2, u"XYZ", u"aXYZdef"}, {2, -1, u"XYZ", u"aXYZef"}, {7, 3, u"XY", u"abcdefXY"},
        {1, 6, u"", u""},           {0, 1, u"X", u"abcdef"},    {2, 0, u"X", u"aXbcdef"},
    };
    for (const Case& c : cases) {
        std::u16string source = u"abcdef";
        members().vkrMidLet(source, c.start, c.length, c.value);
        EXPECT_EQ(source, c.expected) << c.start << " " << c.length;
    }
}

} // namespace
} // namespace velkor6::text
