#include "core/text.h"
#include "fake/error_of.h"
#include "platform/ansi.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <string>

namespace velkor6 {
namespace {

TEST(TextEncoding, Utf8RoundTripsAndReplacesWhatIsIllFormed) {
    const std::u16string text = u"a\u00E4\u20AC\U0001F600z";
    EXPECT_EQ(toUtf8(text), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z");
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
    // Lone surrogates, a truncated sequence, an overlong form and an encoded surrogate.
    EXPECT_EQ(toUtf8(u"\xD800x"), "\xEF\xBF\xBDx");
    EXPECT_EQ(fromUtf8("\xE2\x82"), u"\uFFFD");
    EXPECT_EQ(fromUtf8("\xC0\xAF!"), u"\uFFFD\uFFFD!");
    EXPECT_EQ(fromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
}

TEST(TextEncoding, AnsiCodePageMapsTheHighControlBlock) {
    EXPECT_EQ(ansiToChar(0x80), u'\u20AC');
    EXPECT_EQ(ansiToChar(0x9F), u'\u0178');
    EXPECT_EQ(ansiToChar(0x81), u'\u0081'); // undefined bytes keep their C1 control
    EXPECT_EQ(ansiToChar(0xE4), u'\u00E4');
    EXPECT_EQ(charToAnsi(u'\u2122'), 0x99);
    EXPECT_EQ(charToAnsi(u'\u0085'), -1); // a C1 control the code page replaced
    EXPECT_EQ(toAnsi(u"\u0416\u0E01\u00E9"), "??\xE9");
    std::string all;
    for (int b = 0; b < 256; ++b)
        all.push_back(static_cast<char>(b));
    EXPECT_EQ(toAnsi(fromAnsi(all)), all);
}

TEST(TextCase, FoldsLatinLettersInPairs) {
    const std::u16string_view pairs[] = {u"\u00E4\u00C4", u"\u0151\u0150", u"\u0142\u0141",
                                         u"\u00FF\u0178", u"\u0436\u0416", u"\u03C9\u03A9"};
    for (std::u16string_view p : pairs) {
        EXPECT_EQ(toUpper(p[0]), p[1]);
        EXPECT_EQ(toLower(p[1]), p[0]);
        EXPECT_EQ(foldCase(p[1]), p[0]);
    }
    EXPECT_EQ(upperCase(u"stra\u00DFe"), u"STRA\u00DFE");
    EXPECT_EQ(toUpper(u'\u0131'), u'\u0131');
    // The search relies on this: every character is its folded form or that form's capital.
    for (char32_t c = 0; c < 0x10000; ++c) {
        const auto ch = static_cast<char16_t>(c);
        const char16_t folded = foldCase(ch);
        ASSERT_TRUE(ch == folded || ch == toUpper(folded)) << static_cast<unsigned>(c);
        ASSERT_EQ(foldCase(folded), folded) << static_cast<unsigned>(c);
    }
}

TEST(TextCompare, OrdersLikeStrComp) {
    struct Case {
        std::u16string_view a, b;
        Compare mode;
        int expected;
    };
    const Case cases[] = {
        {u"ABC", u"abc", Compare::Binary, -1},
        {u"ABC", u"abc", Compare::Text, 0},
        {u"ab", u"abc", Compare::Text, -1},
        {u"\u00E4", u"b", Compare::Text, -1},     // ä between a and b
        {u"a", u"\u00E4", Compare::Text, -1},     // the accent breaks the tie
        {u"\u00E4b", u"ac", Compare::Text, -1},   // letters before accents
        {u"\u00C4", u"\u00E4", Compare::Text, 0}, // case is ignored
        {u"Stra\u00DFe", u"Strasse", Compare::Text, 1},
        {u"Stra\u00DFe", u"Strast", Compare::Text, -1},
        {u"9", u"a", Compare::Text, -1},
        {u"_", u"0", Compare::Text, -1},
        {u"z", u"\u00E4", Compare::Binary, -1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(compareStrings(c.a, c.b, c.mode), c.expected)
            << toUtf8(c.a) << " / " << toUtf8(c.b);
        EXPECT_EQ(compareStrings(c.b, c.a, c.mode), -c.expected);
    }
    EXPECT_TRUE(textEqual(u"\u00C9T\u00C9", u"\u00E9t\u00E9", Compare::Text));
    EXPECT_FALSE(textEqual(u"\u00E9", u"e", Compare::Text));
}

TEST(TextInStr, FollowsTheRunTimeRules) {
    struct Case {
        std::size_t start;
        std::u16string_view source, find;
        Compare mode;
        std::size_t expected;
    };
    const Case cases[] = {
        {1, u"abcd", u"bc", Compare::Binary, 2},
        {3, u"abcd", u"bc", Compare::Binary, 0},
        {5, u"abcd", u"bc", Compare::Binary, 0},
        {1, u"abcABC", u"aB", Compare::Binary, 0},
        {1, u"abcABC", u"aB", Compare::Text, 1},
        {2, u"abcABC", u"aB", Compare::Text, 4},
        {2, std::u16string_view(u"abc\0A\0BC", 8), u"C", Compare::Binary, 8},
        {4, u"abcdef", u"", Compare::Binary, 4},
        {20, u"abcdef", u"", Compare::Binary, 0},
        {4, u"", u"", Compare::Binary, 0},
        {1, u"X\u00C4\u00DFe", u"\u00E4SSE", Compare::Text, 0},
        {1, u"X\u00C4\u00DFe", u"\u00E4\u00DFE", Compare::Text, 2},
        {1, u"aaab", u"aab", Compare::Text, 2},
    };
    for (const Case& c : cases)
        EXPECT_EQ(inStr(c.start, c.source, c.find, c.mode), c.expected) << toUtf8(c.source);
    EXPECT_EQ(errorOf([] { inStr(0, u"abc", u"a", Compare::Text); }), vberr::invalidCall);
}

TEST(TextCut, TrimsSpacesAndClampsLikeMid) {
    EXPECT_EQ(trimSpaces(u"  a b \t "), u"a b \t");
    EXPECT_EQ(rtrimSpaces(u"   test    "), u"   test");
    EXPECT_EQ(ltrimSpaces(u"    "), u"");
    EXPECT_EQ(mid(u"test", 2, 4), u"est");
    EXPECT_EQ(mid(u"test", 5, 2), u"");
    EXPECT_EQ(mid(u"test", 2), u"est");
    EXPECT_EQ(left(u"test", 5), u"test");
    EXPECT_EQ(right(u"test", 2), u"st");
    EXPECT_EQ(errorOf([] { mid(u"test", 0); }), vberr::invalidCall);
    EXPECT_EQ(errorOf([] { mid(u"test", 1, -2); }), vberr::invalidCall);
    EXPECT_EQ(errorOf([] { right(u"test", -1); }), vberr::invalidCall);
    EXPECT_EQ(errorOf([] { left(u"test", -1); }), vberr::invalidCall);
}

} // namespace
} // namespace velkor6
