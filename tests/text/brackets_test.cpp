#include "fake/error_of.h"
#include "text/text_lib.h"

#include <gtest/gtest.h>

namespace velkor6::text {
namespace {

using Brackets = MemberTest;

TEST_F(Brackets, ExtractNestedRegionsOutsideQuotes) {
    EXPECT_EQ(l.vkrExtractBrackets(u"Sum(a * (b + 1)) + c"), u"a * (b + 1)");
    EXPECT_EQ(l.vkrExtractBrackets(u"x = ')' & f(1)"), u"1");
    EXPECT_EQ(l.vkrExtractBrackets(uR"(f("(", g(2)))"), uR"("(", g(2))");
    EXPECT_EQ(l.vkrExtractBrackets(u"a [b] (c)", u"()|[]"), u"b");
    EXPECT_EQ(l.vkrExtractBrackets(u"(a) (b)", u"()", 2), u"b");
    // Quotes are followed from the start: the "(" at 7 is inside a literal opened before it.
    EXPECT_EQ(l.vkrExtractBrackets(u"'a (b' (c)", u"()", 3), u"c");
    EXPECT_EQ(l.vkrExtractBrackets(u"(open (inner)"), u"");
    EXPECT_EQ(l.vkrExtractBrackets(u") no"), u"");
    EXPECT_EQ(l.vkrExtractBrackets(u"()"), u"");
    EXPECT_EQ(errorOf([&] { l.vkrExtractBrackets(u"(a)", u"(", 1); }), vberr::invalidCall);
    EXPECT_EQ(errorOf([&] { l.vkrExtractBrackets(u"(a)", u"((", 1); }), vberr::invalidCall);
    EXPECT_EQ(errorOf([&] { l.vkrExtractBrackets(u"(a)", u"()", 0); }), vberr::invalidCall);

    EXPECT_EQ(l.vkrPhraseWithoutBrackets(u"Customer (inactive) list"), u"Customer list");
    EXPECT_EQ(l.vkrPhraseWithoutBrackets(u"Sum(x) + (y)"), u"Sum +");
    EXPECT_EQ(l.vkrPhraseWithoutBrackets(u"a '(keep)' (drop (nested)) b"), u"a '(keep)' b");
    EXPECT_EQ(l.vkrPhraseWithoutBrackets(u"a (b) (c"), u"a (c");
}

TEST_F(Brackets, SplitExpressionsAndFunctionCalls) {
    std::u16string rest;
    EXPECT_EQ(l.vkrExtractExpression(u"f(a, b), 'x,y', 3", u",", u"()|[]|{}", true, &rest),
              u"f(a, b)");
    EXPECT_EQ(rest, u"'x,y', 3");
    EXPECT_EQ(l.vkrExtractExpression(rest, u",", u"()|[]|{}", true, &rest), u"'x,y'");
    EXPECT_EQ(l.vkrExtractExpression(rest, u",", u"()|[]|{}", true, &rest), u"3");
    EXPECT_EQ(rest, u"");
    EXPECT_EQ(l.vkrExtractExpression(u"a = 1 and (b = 2 OR c = 3) OR d", u" AND | OR ", u"()", true,
                                     &rest),
              u"a = 1");
    EXPECT_EQ(rest, u"(b = 2 OR c = 3) OR d");
    EXPECT_EQ(l.vkrExtractExpression(u"a and b", u" AND ", u"()", false, &rest), u"a and b");
    EXPECT_EQ(l.vkrExtractExpression(u"x) , y", u",", u"()", true, &rest), u"x)");

    std::u16string name;
    std::vector<std::u16string> args;
    EXPECT_TRUE(
        l.vkrSeparateFunction(u" IIf(a > 1, 'x, y', Max(b, c), [p,q], \"s\"\"t,\") ", name, args));
    EXPECT_EQ(name, u"IIf");
    EXPECT_EQ(args, (std::vector<std::u16string>{u"a > 1", u"'x, y'", u"Max(b, c)", u"[p,q]",
                                                 u"\"s\"\"t,\""}));
    EXPECT_TRUE(l.vkrSeparateFunction(u"Now( )", name, args));
    EXPECT_TRUE(args.empty());
    EXPECT_TRUE(l.vkrSeparateFunction(u"f(a,)", name, args));
    EXPECT_EQ(args, (std::vector<std::u16string>{u"a", u""}));
    for (const auto* notACall : {u"f(a) + 1", u"(a)", u"name", u"f(a", u"'f'(a)", u""}) {
        EXPECT_FALSE(l.vkrSeparateFunction(notACall, name, args));
        EXPECT_EQ(name, u"");
        EXPECT_TRUE(args.empty());
    }
}

TEST_F(Brackets, DecimalSeparatorsBecomePoints) {
    lib german = members(Locale::germanGermany());
    EXPECT_EQ(german.vkrReplaceDecimalChars(u"Preis > 1.234,5 AND Code = '2,5' AND x1,5"),
              u"Preis > 1234.5 AND Code = '2,5' AND x1,5");
    EXPECT_EQ(german.vkrReplaceDecimalChars(u"IN (1, 5) OR v = 1,5E-3 OR w = 1.234 OR y = 1,2,3"),
              u"IN (1, 5) OR v = 1.5E-3 OR w = 1.234 OR y = 1,2,3");
    EXPECT_EQ(german.vkrReplaceDecimalChars(u"a = 12.34,5 OR b = 1,5x OR \"1,5\" = 0,25"),
              u"a = 12.34,5 OR b = 1,5x OR \"1,5\" = 0.25");
    EXPECT_EQ(l.vkrReplaceDecimalChars(u"a = 1,234,567.5 OR b = 1,500 OR c = 1,23.4"),
              u"a = 1234567.5 OR b = 1,500 OR c = 1,23.4");
    EXPECT_EQ(l.vkrReplaceDecimalChars(u"a = 2,5", u","), u"a = 2.5");
    EXPECT_EQ(errorOf([&] { l.vkrReplaceDecimalChars(u"1", u",."); }), vberr::invalidCall);
}

TEST_F(Brackets, ResourceTextsToXmlAndBack) {
    EXPECT_EQ(l.vkrResConv(u"&Save <all> \"it's\"\t\r\n"),
              u"&amp;Save &lt;all&gt; &quot;it&apos;s&quot;&#9;&#13;&#10;");
    EXPECT_EQ(l.vkrResConv(u"&amp;Ja&#10;&#x1F600;&#65;&#xd800;&#0;&bogus; & &#12", false),
              u"&Ja\n\U0001F600A&#xd800;&#0;&bogus; & &#12");
    const std::u16string all = u"a&b<c>d\"e'f\tg\rh\ni\u00e4\U0001F600";
    EXPECT_EQ(l.vkrResConv(l.vkrResConv(all), false), all);
}

} // namespace
} // namespace velkor6::text
