#include "core/like.h"
#include "fake/error_of.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

struct Case {
    std::u16string_view s, pattern;
    bool binary, text;
};

TEST(Like, MatchesWholeTextsInBothModes) {
    using namespace std::string_view_literals;
    const Case cases[] = {
        {u"", u"", true, true},
        {u"abc", u"abc", true, true},
        {u"abc", u"ab", false, false},
        {u"ab", u"abc", false, false},
        {u"abc", u"a?c", true, true},
        {u"A\0B"sv, u"A?B", true, true},
        {u"A\0B"sv, u"AB", false, false},
        {u"", u"?", false, false},
        {u"", u"*", true, true},
        {u"aBBBa", u"a*a", true, true},
        {u"abcab", u"*ab", true, true},
        {u"abcac", u"*ab", false, false},
        {u"a1", u"a#", true, true},
        {u"ab", u"a#", false, false},
        {u"a", u"A", false, true},
        {u"ÄRGER", u"ärger", false, true},
        {u"f", u"[!a-e!g-l]", true, true},
        {u"h", u"[!a-e!g-l]", false, false},
        {u"h", u"[a-e!g-l]", true, true},
        {u"!", u"[a-e!g-l]", true, true},
        {u"j", u"[a-eg-l]", true, true},
        {u"f", u"[A-eg-l]", false, false},
        {u"B", u"[a-c]", false, true},
        {u"à", u"[A-E]", false, true}, // accented letters sort right after their base letter
        {u"ê", u"[A-E]", false, false},
        {u"é", u"[a-f]", false, true},
        {u"a*b", u"a[*]b", true, true},
        {u"a[xyz", u"a[[]*", true, true},
        {u"a]", u"a]", true, true},
        {u"-", u"[-a]", true, true},
        {u"-", u"[a-]", true, true},
        {u"b", u"[a-]", false, false},
        {u"-", u"[!-]", false, false},
        {u"a", u"[]a", true, true}, // "[]" consumes nothing
        {u"x", u"[!]", true, true},
        {u"bb", u"[!a]b", true, true},
        {u"ab", u"[!a]b", false, false},
        // VB answers False in binary mode by misreading the list after "*"; we read it as
        // written. Alphabetically, "a" lies outside the punctuation range.
        {u"aa", u"*[[-{]", true, false},
        {u"aa", u"a[[-{]", true, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(like(c.s, c.pattern, Compare::Binary), c.binary)
            << "binary " << toUtf8(c.s) << " Like " << toUtf8(c.pattern);
        EXPECT_EQ(like(c.s, c.pattern, Compare::Text), c.text)
            << "text " << toUtf8(c.s) << " Like " << toUtf8(c.pattern);
    }
}

TEST(Like, RejectsMalformedPatternsEvenWithoutAMatch) {
    const auto error = [](std::u16string_view s, std::u16string_view pattern, Compare mode) {
        return errorOf([&] { like(s, pattern, mode); });
    };
    EXPECT_EQ(error(u"a[xyz", u"a[*", Compare::Binary), vberr::invalidPattern);
    EXPECT_EQ(error(u"zzz", u"a[", Compare::Text), vberr::invalidPattern);
    EXPECT_EQ(error(u"m", u"[z-a]", Compare::Binary), vberr::invalidPattern);
    EXPECT_EQ(error(u"m", u"[Z-a]", Compare::Text), vberr::invalidPattern);
    // 'a' follows 'Z' in code units but not alphabetically.
    EXPECT_EQ(error(u"m", u"[a-Z]", Compare::Binary), vberr::invalidPattern);
    EXPECT_TRUE(like(u"M", u"[a-Z]", Compare::Text));
    // Ranges of punctuation run by code unit in binary mode; alphabetically, "\\" precedes "S".
    EXPECT_TRUE(like(u"Xi", u"[S-\\]i", Compare::Binary));
    EXPECT_FALSE(like(u":i", u"[S-\\]i", Compare::Binary));
    EXPECT_EQ(error(u"Xi", u"[S-\\]i", Compare::Text), vberr::invalidPattern);
}

TEST(Like, StarsDoNotBacktrackExponentially) {
    const std::u16string s(20000, u'a');
    EXPECT_FALSE(like(s, u"*a*a*a*a*a*a*a*a*a*a*b", Compare::Text));
    EXPECT_TRUE(like(s + u"b", u"*a*a*a*a*a*a*a*a*a*a*b", Compare::Binary));
}

} // namespace
} // namespace velkor6
