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

const Locale& en = Locale::englishUS();

using TextReplace = MemberTest;

TEST_F(TextReplace, LeavesDoubleQuotedLiteralsAlone) {
    EXPECT_EQ(l.vkrReplaceInString(u"x = \"a\" & a", u"a", u"b"), u"x = \"a\" & b");
    EXPECT_EQ(l.vkrReplaceInString(u"x = \"A\" & A", u"a", u"b", 1, false), u"x = \"A\" & b");
    EXPECT_EQ(l.vkrReplaceInString(u"x = \"a\" & a", u"a", u"b", 1, true, false, false),
              u"x = \"b\" & b");
    EXPECT_EQ(l.vkrReplaceInString(u"'a'", u"a", u"b"),
              u"'b'"); // single quotes are not signs
    // The quotes are counted in the text as it is now, replacements included.
    EXPECT_EQ(l.vkrReplaceInString(u"a a \"x\"", u"a", u"\""), u"\" a \"x\"");
}

TEST_F(TextReplace, ReplacesEachMatchOnceFromTheStart) {
    EXPECT_EQ(l.vkrReplaceInString(u"aa", u"a", u"aa"), u"aaaa");
    EXPECT_EQ(l.vkrReplaceInString(u"aaa", u"a", u"b", 2), u"abb");
    EXPECT_EQ(l.vkrReplaceInString(u"aaa", u"a", u"b", 0), u"aaa");
    EXPECT_EQ(l.vkrReplaceInString(u"a OR b or c", u"or|and", u"AND"), u"a AND b AND c");
    EXPECT_EQ(l.vkrReplaceInString(u"id, pid, id", u"id", u"x", 1, true, false, true, true),
              u"x, pid, x");
    EXPECT_EQ(l.vkrReplaceInString(u"abc", u"", u"x"), u"abc");
    // An empty alternative is replaced at the same place for ever, unless a quote it inserts
    // protects the rest.
    EXPECT_EQ(errorOf([&] { l.vkrReplaceInString(u"ab", u"|", u"x"); }), vberr::overflow);
    EXPECT_EQ(errorOf([&] { l.vkrReplaceInString(u"ab", u"b|", u""); }), vberr::overflow);
    EXPECT_EQ(l.vkrReplaceInString(u"ab", u"|", u"\""), u"\"ab");
}

TEST_F(TextReplace, OnlyAtBeginningReplacesOneLeadingMatch) {
    EXPECT_EQ(l.vkrReplaceInString(u"  select a", u"select", u"SELECT", 1, true, true),
              u"  SELECT a");
    EXPECT_EQ(l.vkrReplaceInString(u"a select", u"select", u"x", 1, true, true), u"a select");
    EXPECT_EQ(l.vkrReplaceInString(u"a a", u"a", u"x", 1, true, true), u"x a");
    // The trimmed text may pass the whole-word test where the text itself does not.
    EXPECT_EQ(l.vkrReplaceInString(u"cats ", u"cat", u"dog", 1, true, true, true, true), u"cats ");
    EXPECT_EQ(l.vkrReplaceInStringExt(u"aab", u"a", u"x", 1, true, true), u"xab");
    EXPECT_EQ(l.vkrReplaceInStringExt(u"aab", u"a", u"", 1, true, true), u"b");
    EXPECT_EQ(l.vkrReplaceInStringExt(u" ab", u"a", u"x", 1, true, true), u" ab");
}

TEST_F(TextReplace, ExtSkipsSignPairsAndNumericWords) {
    EXPECT_EQ(l.vkrReplaceInStringExt(u"a = 'a' (a)", u"a", u"b", 1, true, false, false, false,
                                      false, u"''|()"),
              u"b = 'a' (a)");
    EXPECT_EQ(l.vkrReplaceInStringExt(u"\"a\"", u"a", u"b"), u"\"b\"");
    EXPECT_EQ(l.vkrReplaceInStringExt(u"(1.5) x.y", u".", u",", 1, true, false, false, true),
              u"(1.5) x,y");
    EXPECT_EQ(l.vkrReplaceInStringExt(u"(1.5) x.y", u".", u",", 1, true, false, false, false, true),
              u"(1,5) x.y");
    EXPECT_EQ(l.vkrReplaceInStringExt(u"(1.5) x.y", u".", u",", 1, true, false, false, true, true),
              u"(1.5) x.y");
}

TEST_F(TextReplace, OverflowsWhenThePositionPassesTheIntegerRange) {
    const std::u16string x(32760, u'x');
    EXPECT_EQ(errorOf([&] { l.vkrReplaceInString(x + u"a", u"a", u"bbbbbbb"); }), vberr::overflow);
    EXPECT_EQ(l.vkrReplaceInString(x + u"a", u"a", u"bbbbbb"), x + u"bbbbbb");
    // A skip from 32767 overflows too; a match beyond the range is not found at all.
    EXPECT_EQ(errorOf([&] { l.vkrReplaceInString(u"\"" + x + u"xxxxxa", u"a", u"b"); }),
              vberr::overflow);
    EXPECT_EQ(l.vkrReplaceInString(x + u"xxxxxxxa", u"a", u"b"), x + u"xxxxxxxa");
    EXPECT_EQ(errorOf([&] { l.vkrReplaceInStringExt(x + u"a", u"a", u"bbbbbbb"); }),
              vberr::overflow);
    EXPECT_EQ(replaceInString(x + u"a", u"a", u"bbbbbbb", 1, {}), x + u"bbbbbbb");
}

TEST_F(TextReplace, AgreesWithTheStepByStepLoop) {
    testing::RandomText random(11);
    for (int round = 0; round < 4000; ++round) {
        const std::u16string source = random.text(20);
        const std::u16string find = random.alternatives();
        const std::u16string replacement =
            random.pick({u"", u"z", u"\"", u"a", u"(", u")", u"1", u"ab", u"''", u" 0"});
        const Pos start = random.below(5) - 1;
        // Endless loops end by overflow sooner with a small limit.
        const bool endless = find.empty() || find.front() == u'|' || find.back() == u'|' ||
                             find.find(u"||") != find.npos;
        const Pos limit = endless || random.chance(50) ? 20 : noLimit;
        // Either the plain replace with its quote rule, or Ext with its sign pairs and options.
        const bool plain = random.chance(40);
        const std::u16string signs = plain ? u"" : random.signPairs();
        const reference::Options same{plain && random.chance(70),  signs,
                                      !plain && random.chance(15), random.chance(30),
                                      !plain && random.chance(25), !plain && random.chance(25)};
        std::u16string fast;
        std::u16string slow;
        const int error = errorOf(
            [&] { slow = reference::replace(source, find, replacement, start, same, limit); });
        ASSERT_EQ(errorOf([&] {
                      fast = plain ? replaceInString(source, find, replacement, start,
                                                     {false, same.quotes, same.wholeWord}, limit)
                                   : replaceInStringExt(source, find, replacement, start,
                                                        {same.onlyAtBeginning, same.wholeWord,
                                                         same.notNumeric, same.onlyNumeric, signs},
                                                        en, limit);
                  }),
                  error)
            << round;
        ASSERT_EQ(fast, slow) << round;
    }
}

} // namespace
} // namespace velkor6::text
