#include "text/text_lib.h"
#include "text/text_toolkit.h"

#include <gtest/gtest.h>
#include <string>

namespace velkor6::text {
namespace {

using TextFind = MemberTest;

TEST_F(TextFind, PicksTheEarliestOrTheFirstListedAlternative) {
    std::u16string found = u"untouched";
    EXPECT_EQ(
        l.vkrFindSubString(u"Select a, b FROM t", u"from|select", 1, true, true, false, &found), 1);
    EXPECT_EQ(found, u"select");
    EXPECT_EQ(
        l.vkrFindSubString(u"Select a, b FROM t", u"from|select", 1, true, false, false, &found),
        13);
    EXPECT_EQ(found, u"from");
    // Equal positions keep the alternative listed first.
    EXPECT_EQ(l.vkrFindSubString(u"abc", u"ab|a", 1, true, true, false, &found), 1);
    EXPECT_EQ(found, u"ab");
    // An empty alternative is found at the start position; an empty term has none.
    EXPECT_EQ(l.vkrFindSubString(u"abc", u"x||c", 2, true, true, false, &found), 2);
    EXPECT_EQ(found, u"");
    found = u"kept";
    EXPECT_EQ(l.vkrFindSubString(u"abc", u"", 1, true, true, false, &found), 0);
    EXPECT_EQ(l.vkrFindSubString(u"", u"|a", 1, true, true, false, &found), 0);
    EXPECT_EQ(l.vkrFindSubString(u"abc", u"B", 1, false, true, false, &found), 0);
    EXPECT_EQ(found, u"kept");
    // The search traps its own errors.
    EXPECT_EQ(l.vkrFindSubString(u"abc", u"a", 0), 0);
    EXPECT_EQ(l.vkrFindSubString(u"abc", u"a", -5), 0);
}

TEST_F(TextFind, WholeWordsNeedDelimitersExceptBeforeTheLastCharacter) {
    struct Case {
        std::u16string_view source, find;
        std::int16_t expected;
    };
    const Case cases[] = {
        {u"ab cat.", u"cat", 4},    {u"concat x", u"cat", 0}, {u"cats", u"cat", 1},
        {u"a\tcat b", u"cat", 0},   {u"a-cat b", u"cat", 0},  {u"a\ncat\r", u"cat", 3},
        {u"x cat_y", u"cat", 0},    {u"catx cat", u"cat", 6}, {u"\u00A7cat\u00B4", u"cat", 2},
        {u"(cat)", u"CAT", 2},      {u"cat", u"cat", 1},      {u"scat", u"cat", 0},
        {u"catsup cat", u"cat", 8},
    };
    for (const Case& c : cases) {
        std::u16string found;
        EXPECT_EQ(l.vkrFindSubString(c.source, c.find, 1, true, true, true, &found), c.expected)
            << std::string(c.source.begin(), c.source.end());
    }
}

TEST_F(TextFind, LastOccurrenceAndPresence) {
    EXPECT_EQ(l.vkrFindLastSubString(u"aaaa", u"aa"), 3);
    EXPECT_EQ(l.vkrFindLastSubString(u"a|b a|b", u"A|B"), 5); // "|" is not special here
    EXPECT_EQ(l.vkrFindLastSubString(u"a|b a|b", u"A|B", 1, false), 0);
    EXPECT_EQ(l.vkrFindLastSubString(u"abcabc", u"abc", 5), 0);
    EXPECT_EQ(l.vkrFindLastSubString(u"abc", u""), 3);
    EXPECT_EQ(l.vkrFindLastSubString(u"abc", u"a", 0), 0);
    EXPECT_EQ(l.vkrHasSubString(u"Select", u"x|LEC"), -1);
    EXPECT_EQ(l.vkrHasSubString(u"Select", u"x|LEC", 1, false), 0);
    EXPECT_EQ(l.vkrHasSubString(u"", u"a"), 0);
}

TEST_F(TextFind, GetsTheTrimmedTextBetweenTwoTerms) {
    EXPECT_EQ(l.vkrGetSubString(u"SELECT  a, b  FROM t", u"select", u"from"), u"a, b");
    EXPECT_EQ(l.vkrGetSubString(u"SELECT a FROM t", u"select", u""), u"a FROM t");
    EXPECT_EQ(l.vkrGetSubString(u"SELECT a FROM t", u"", u"from"), u"SELECT a");
    EXPECT_EQ(l.vkrGetSubString(u"SELECT a FROM t", u"where", u"from"), u"");
    EXPECT_EQ(l.vkrGetSubString(u"SELECT a FROM t", u"select", u"where"), u"");
    // iStartSearch is ignored; alternatives and whole words apply to both terms.
    EXPECT_EQ(l.vkrGetSubString(u"x = 1 AND y = 2", u"=", u"and|or", 9), u"1");
    EXPECT_EQ(l.vkrGetSubString(u"fromage from t", u"from", u"", 1, true, true), u"t");
}

TEST_F(TextFind, SeparatesAtTheFirstListedAlternativeThatOccurs) {
    std::u16string before, term, after;
    l.vkrSeparateString(u" a = b < c ", u"<|=", before, term, after);
    EXPECT_EQ(before, u"a = b");
    EXPECT_EQ(term, u"<");
    EXPECT_EQ(after, u"c");
    l.vkrSeparateString(u" a = b ", u"x|y", before, term, after);
    EXPECT_EQ(before, u"");
    EXPECT_EQ(term, u" a = b ");
    EXPECT_EQ(after, u"");
    l.vkrSeparateString(u"a=b=c", u"=", before, term, after, 3);
    EXPECT_EQ(before, u"a=b");
    EXPECT_EQ(after, u"c");
    l.vkrSeparateString(u"a B c", u"b", before, term, after, 1, false);
    EXPECT_EQ(term, u"a B c");
}

TEST_F(TextFind, PositionsBeyondTheIntegerRangeAreNotFound) {
    std::u16string text(32765, u'x');
    text += u" cat cat";
    // The first "cat" starts at 32767, the second one beyond the Integer range.
    EXPECT_EQ(l.vkrFindSubString(text, u"cat"), 32767);
    EXPECT_EQ(l.vkrFindLastSubString(text, u"cat"), 32767);
    EXPECT_EQ(l.vkrFindSubString(text, u"cat", 1, true, true, true), 32767);
    EXPECT_EQ(l.vkrHasSubString(text, u"t cat"), 0);
    text[32765] = u'y';
    EXPECT_EQ(l.vkrFindSubString(text, u"cat", 1, true, true, true), 0);
    // The toolkit itself reaches any position.
    EXPECT_EQ(findSubString(text, u"cat", 1, Compare::Text, true, true, nullptr), 32771);
    EXPECT_TRUE(hasSubString(text, u"t cat", 1, Compare::Text));
}

} // namespace
} // namespace velkor6::text
