#include <gtest/gtest.h>

#include "core/text.h"
#include "literal.h"
#include "velkor6/vb_error.h"

namespace velkor6::cli {
namespace {

std::u16string typedOf(std::u16string_view text) {
    auto v = parseLiteral(text);
    return v ? typedLiteral(*v) : u"<none>";
}

TEST(CliLiteral, ReadsEachLiteralWithVbTyping) {
    const std::pair<std::u16string_view, std::u16string_view> cases[] = {
        {u"12", u"12%"},
        {u"-32768", u"-32768&"}, // the sign applies after typing, as in VB
        {u"32767", u"32767%"},
        {u"40000", u"40000&"},
        {u"3000000000", u"3000000000#"},
        {u"12.5", u"12.5#"},
        {u"1%", u"1%"},
        {u"2&", u"2&"},
        {u"1.5!", u"1.5!"},
        {u"1.5#", u"1.5#"},
        {u"12.5@", u"12.5@"},
        {u"-0.0001@", u"-0.0001@"},
        {u"1e20", u"1E+20#"},
        {u"&HFF", u"255%"},
        {u"&HFFFF", u"-1%"},
        {u"&H10000", u"65536&"},
        {u"&HFFFFFFFF", u"-1&"},
        {u"&HFF&", u"255&"},
        {u"&O17", u"15%"},
        {u"#2024-03-15#", u"#2024-03-15#"},
        {u"#2024-03-15 13:45:00#", u"#2024-03-15 13:45:00#"},
        {u"true", u"True"},
        {u"False", u"False"},
        {u"Null", u"Null"},
        {u"Empty", u"Empty"},
        {u"Nothing", u"Nothing"},
        {u"Missing", u"Missing"},
        {u"\"say \"\"hi\"\"\"", u"\"say \"\"hi\"\"\""},
        {u"\"a\" & Chr(9) & \"b\"", u"\"a\" & Chr(9) & \"b\""},
        {u"Chr(13) & Chr(10)", u"Chr(13) & Chr(10)"},
        {u"\"\"", u"\"\""},
        {u"Array(\"Name\", \"Smith\", True, 12.5)", u"Array(\"Name\", \"Smith\", True, 12.5#)"},
        {u"Array()", u"Array()"},
        {u"Array(Array(1), \"x\")", u"Array(Array(1%), \"x\")"},
    };
    for (const auto& [text, typed] : cases)
        EXPECT_EQ(toUtf8(typedOf(text)), toUtf8(typed)) << toUtf8(text);
}

TEST(CliLiteral, TextThatIsNoSingleLiteralStaysText) {
    const std::u16string_view plain[] = {
        u"Select a, b FROM t", u"from|select", u"EUR 1.234,50", u"1.234,5", u"12abc",
        u"\"open", u"#2024-02-30#", u"#2024-3-15#", u"\"a\" & 1", u"32768%", u"Array(1,",
        u"Deflate", u"",
    };
    for (auto text : plain)
        EXPECT_FALSE(parseLiteral(text).has_value()) << toUtf8(text);

    ParsedArgument arg = parseCommandArgument(u"bFindFirst:=False");
    EXPECT_EQ(arg.name, u"bFindFirst");
    EXPECT_EQ(arg.value, Variant(false));
    arg = parseCommandArgument(u"sName:=plain words");
    EXPECT_EQ(arg.name, u"sName");
    EXPECT_EQ(arg.value, Variant(u"plain words"));
    arg = parseCommandArgument(u"a:b");
    EXPECT_EQ(arg.name, u"");
    EXPECT_EQ(arg.value, Variant(u"a:b"));
}

TEST(CliLiteral, ReadsCallLines) {
    ParsedCall call =
        parseCallLine(u"vkrFindSubString(\"Select a, b FROM t\", \"from|select\", bFindFirst:=False)");
    EXPECT_EQ(call.member, u"vkrFindSubString");
    ASSERT_EQ(call.arguments.size(), 3u);
    EXPECT_EQ(call.arguments[1].value, Variant(u"from|select"));
    EXPECT_EQ(call.arguments[2].name, u"bFindFirst");
    EXPECT_FALSE(call.assigned.has_value());

    call = parseCallLine(u"? f(1, , 3)");
    ASSERT_EQ(call.arguments.size(), 3u);
    EXPECT_TRUE(call.arguments[1].value.isMissing());

    call = parseCallLine(u"vkrMid(\"abcdef\", 2, 2) = \"XYZ\"");
    ASSERT_TRUE(call.assigned.has_value());
    EXPECT_EQ(*call.assigned, Variant(u"XYZ"));

    call = parseCallLine(u"f");
    EXPECT_TRUE(call.arguments.empty());
    call = parseCallLine(u"Print g 1, \"x\"");
    EXPECT_EQ(call.member, u"g");
    EXPECT_EQ(call.arguments.size(), 2u);

    for (auto bad : {u"f(1", u"f(bare words)", u"(1)", u"f(1) trailing"})
        EXPECT_THROW(parseCallLine(bad), VbError) << toUtf8(bad);
}

TEST(CliLiteral, TypedNumbersAreShortestRoundTrip) {
    EXPECT_EQ(typedLiteral(Variant(0.1)), u"0.1#");
    EXPECT_EQ(typedLiteral(Variant(1234.5)), u"1234.5#");
    EXPECT_EQ(typedLiteral(Variant(0.1f)), u"0.1!");
    EXPECT_EQ(typedLiteral(Variant(1.0 / 3)), u"0.3333333333333333#");
    EXPECT_EQ(typedLiteral(Variant(1e15)), u"1E+15#");
    EXPECT_EQ(typedLiteral(Variant(123456789012345.0)), u"123456789012345#");
    EXPECT_EQ(typedLiteral(Variant(-0.00001)), u"-0.00001#");
    EXPECT_EQ(typedLiteral(Variant(1.5e-7)), u"1.5E-7#");
    EXPECT_EQ(typedLiteral(Variant(Currency{-9223372036854775807LL - 1})),
              u"-922337203685477.5808@");
}

} // namespace
} // namespace velkor6::cli
