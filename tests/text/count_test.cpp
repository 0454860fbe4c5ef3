#include "fake/error_of.h"
#include "text/random_text.h"
#include "text/reference_loops.h"
#include "text/text_lib.h"
#include "text/text_toolkit.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <string>

namespace velkor6::text {
namespace {

using TextCount = MemberTest;

TEST_F(TextCount, CountsNonOverlappingOccurrencesOfEachAlternative) {
    EXPECT_EQ(l.vkrCountSubString(u"aaaa", u"aa"), 2);
    EXPECT_EQ(l.vkrCountSubString(u"abc", u"a|b"), 2);
    EXPECT_EQ(l.vkrCountSubString(u"abc", u"ab|b"), 2); // counted once per alternative
    EXPECT_EQ(l.vkrCountSubString(u"", u"a"), 0);
    EXPECT_EQ(l.vkrCountSubString(u"abc", u""), 0);
    EXPECT_EQ(l.vkrCountSubString(u"aAa", u"a", 2), 2);
    EXPECT_EQ(l.vkrCountSubString(u"aAa", u"a", 1, false), 2);
    EXPECT_EQ(l.vkrCountSubString(u"aaa", u"a", 0), 0); // the search traps a start below 1
    // An empty alternative is found at the same place again and again.
    EXPECT_EQ(errorOf([&] { l.vkrCountSubString(u"abc", u"b|"); }), vberr::overflow);
    EXPECT_EQ(l.vkrCountSubString(u"abc", u"b|", 4), 0);
    EXPECT_EQ(errorOf([&] { countSubString(u"abc", u"|", 1, Compare::Text); }), vberr::overflow);
}

TEST_F(TextCount, LeavesOutOccurrencesInsideSignPairs) {
    const std::u16string_view sql = u"a = 'a' AND (a) OR \"a\"";
    EXPECT_EQ(l.vkrCountSubStringExt(sql, u"a"), 5);
    EXPECT_EQ(l.vkrCountSubStringExt(sql, u"a", 1, true, u"''"), 4);
    EXPECT_EQ(l.vkrCountSubStringExt(sql, u"a", 1, true, u"''|()|\"\""), 2);
    EXPECT_EQ(l.vkrCountSubStringExt(sql, u"a", 1, true, u"'|x()"), 5); // not pairs
}

TEST_F(TextCount, OverflowsWhereAnIntegerPositionOrCountWould) {
    const std::u16string many(32766, u'a');
    EXPECT_EQ(l.vkrCountSubString(many, u"a", 2), 32765);
    // The last occurrence ends at 32767: the position after it no longer fits.
    EXPECT_EQ(errorOf([&] { l.vkrCountSubString(many + u"a", u"a"); }), vberr::overflow);
    EXPECT_EQ(countSubString(many + u"aa", u"a", 1, Compare::Text), 32768);
    // The sum over the alternatives is one Integer too.
    EXPECT_EQ(errorOf([&] { l.vkrCountSubString(std::u16string(20000, u'a'), u"a|A"); }),
              vberr::overflow);
    std::u16string text(32764, u'x');
    EXPECT_EQ(l.vkrCountSubString(text + u"ab" + u"xxxx", u"ab"), 1);
    EXPECT_EQ(errorOf([&] { l.vkrCountSubString(text + u"xab" + u"xxxx", u"ab"); }),
              vberr::overflow);
    // Occurrences beyond the Integer range are not found, without an error.
    EXPECT_EQ(l.vkrCountSubString(text + u"xxxxxxab", u"ab"), 0);
}

TEST_F(TextCount, ExtAgreesWithTheStepByStepLoop) {
    testing::RandomText random(7);
    for (int round = 0; round < 3000; ++round) {
        const std::u16string source = random.text(24);
        const std::u16string find = random.alternatives();
        const std::u16string signs = random.signPairs();
        const Pos start = random.below(6) - 1;
        const Compare mode = random.chance(50) ? Compare::Text : Compare::Binary;
        const Pos limit = random.chance(50) ? 12 : noLimit;
        auto fast = [&] { return countSubStringExt(source, find, start, mode, signs, limit); };
        auto slow = [&] { return reference::countExt(source, find, start, mode, signs, limit); };
        const int error = errorOf(slow);
        ASSERT_EQ(errorOf(fast), error) << round;
        if (error == 0) {
            ASSERT_EQ(fast(), slow()) << round;
        }
    }
}

} // namespace
} // namespace velkor6::text
