#include "core/text.h"
#include "literal.h"
#include "velkor6/vb_error.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

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
        {u"-32768%", u"-32768%"},
        {u"3.4028235E+38!", u"3.4028235E+38!"}, // the largest Single
        {u"1E-45!", u"1E-45!"},                 // the smallest denormal Single
        {u"5E-324", u"5E-324#"},
        // Currency digits are read exactly, rounded half to even past the fourth decimal.
        {u"922337203685477.5807@", u"922337203685477.5807@"},
        {u"-922337203685477.5808@", u"-922337203685477.5808@"},
        {u"0.00005@", u"0@"},
        {u"0.00015@", u"0.0002@"},
        {u"1.5E3@", u"1500@"},
        // Every year a Date holds reads back; years always have four digits.
        {u"#0100-01-01#", u"#0100-01-01#"},
        {u"#0999-12-31 23:59:59#", u"#0999-12-31 23:59:59#"},
        {u"#9999-12-31 23:59:59#", u"#9999-12-31 23:59:59#"},
    };
    for (const auto& [text, typed] : cases)
        EXPECT_EQ(toUtf8(typedOf(text)), toUtf8(typed)) << toUtf8(text);
}

TEST(CliLiteral, TextThatIsNoSingleLiteralStaysText) {
    const std::u16string_view plain[] = {
        u"Select a, b FROM t",
        u"from|select",
        u"EUR 1.234,50",
        u"1.234,5",
        u"12abc",
        u"\"open",
        u"#2024-02-30#",
        u"#2024-3-15#",
        u"\"a\" & 1",
        u"32768%x",
        u"1E39!x",
        u"Array(1,",
        u"Deflate",
        u"",
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

TEST(CliLiteral, ArgumentsThatStartLikeLiteralsMustBeOneWithinItsType) {
    const std::pair<std::u16string, std::string_view> cases[] = {
        {u"\"abc", "no closing"},
        {u"\"a\" & 1", "unexpected text after a string at column 5"},
        {u"#2024-13-45#", "no date"},
        {u"#2024-02-30#", "no date"},
        {u"&HZZ", "no hexadecimal number"},
        {u"&H123456789", "no hexadecimal number"},
        {u"&O9", "no octal number"},
        {u"Array(1, 2", "unbalanced parentheses"},
        {u"array(\"x)", "no closing"},
        {u"Chr(1))", "unbalanced parentheses"},
        {u"Array(1 2)", "no literal"},
        {u"sName:=\"open", "no closing"},
        {u"1E39!", "1E39! is beyond the range of a Single"},
        {u"-3.5E+38!", "beyond the range of a Single"},
        {u"32768%", "beyond the range of an Integer"},
        {u"-32769%", "beyond the range of an Integer"},
        {u"2147483648&", "beyond the range of a Long"},
        {u"1E400", "beyond the range of a Double"},
        {u"1E400#", "beyond the range of a Double"},
        {u"922337203685477.5808@", "beyond the range of a Currency"},
        {u"1E20@", "beyond the range of a Currency"},
        {u"#0099-12-31#", "before the year 100"},
        {u"#0000-01-01#", "before the year 100"},
        {u"Array(\"a\", 1E39!)", "beyond the range of a Single"},
    };
    for (const auto& [text, message] : cases) {
        try {
            parseCommandArgument(text);
            ADD_FAILURE() << toUtf8(text) << " was read";
        } catch (const UsageError& e) {
            EXPECT_NE(std::string_view(e.what()).find(message), std::string_view::npos)
                << toUtf8(text) << ": " << e.what();
        }
    }

    auto nested = [](int depth) {
        std::u16string text;
        for (int i = 0; i < depth; ++i)
            text += u"Array(";
        text += u"1";
        for (int i = 0; i < depth; ++i)
            text += u")";
        return text;
    };
    EXPECT_TRUE(parseLiteral(nested(maxArrayDepth)).has_value());
    EXPECT_THROW(parseLiteral(nested(maxArrayDepth + 1)), UsageError);
    // Deep enough to overflow the stack of a reader that recursed without a limit.
    EXPECT_THROW(parseCommandArgument(nested(18000)), UsageError);
    EXPECT_THROW(parseScriptLine(u"f(" + nested(18000) + u")"), UsageError);
    for (auto text : {u"12abc", u"#1 item", u"a \"quoted\" word", u"Arrays", u"&", u"1.234,5"})
        EXPECT_EQ(parseCommandArgument(text).value, Variant(text)) << toUtf8(text);
}

TEST(CliLiteral, ValuesNoLiteralWritesStillComeOut) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::pair<Variant, std::u16string_view> cases[] = {
        {Variant(inf), u"1.#INF#"},
        {Variant(-inf), u"-1.#INF#"},
        {Variant(static_cast<float>(inf)), u"1.#INF!"},
        {Variant(std::numeric_limits<double>::quiet_NaN()), u"1.#QNAN#"},
        {Variant(-std::numeric_limits<float>::quiet_NaN()), u"-1.#IND!"},
        {Variant(std::numeric_limits<double>::denorm_min()), u"5E-324#"},
        {Variant(-std::numeric_limits<float>::denorm_min()), u"-1E-45!"},
        {Variant(std::numeric_limits<float>::max()), u"3.4028235E+38!"},
        {Variant(Date{-657434.0}), u"#0100-01-01#"},
        {Variant(Date{-657434.75}), u"#0100-01-01 18:00:00#"},
        {Variant(Date{-657435.0}), u"CDate(-657435#)"},
        {Variant(Date{inf}), u"CDate(1.#INF#)"},
    };
    for (const auto& [value, typed] : cases)
        EXPECT_EQ(toUtf8(typedLiteral(value)), toUtf8(typed));
}

ParsedCall onlyCall(std::u16string_view line) {
    auto calls = parseScriptLine(line);
    EXPECT_EQ(calls.size(), 1u) << toUtf8(line);
    return calls.empty() ? ParsedCall{} : std::move(calls.front());
}

TEST(CliLiteral, ReadsCallLines) {
    ParsedCall call =
        onlyCall(u"vkrFindSubString(\"Select a, b FROM t\", \"from|select\", bFindFirst:=False)");
    EXPECT_EQ(call.member, u"vkrFindSubString");
    ASSERT_EQ(call.arguments.size(), 3u);
    EXPECT_EQ(call.arguments[1].value, Variant(u"from|select"));
    EXPECT_EQ(call.arguments[2].name, u"bFindFirst");
    EXPECT_FALSE(call.assigned.has_value());

    call = onlyCall(u"? f(1, , 3)");
    ASSERT_EQ(call.arguments.size(), 3u);
    EXPECT_TRUE(call.arguments[1].value.isMissing());

    call = onlyCall(u"vkrMid(\"abcdef\", 2, 2) = \"XYZ\"");
    ASSERT_TRUE(call.assigned.has_value());
    EXPECT_EQ(*call.assigned, Variant(u"XYZ"));

    call = onlyCall(u"f");
    EXPECT_TRUE(call.arguments.empty());
    call = onlyCall(u"Print g 1, \"x\"");
    EXPECT_EQ(call.member, u"g");
    EXPECT_EQ(call.arguments.size(), 2u);

    for (auto bad :
         {u"f(1", u"f(bare words)", u"(1)", u"f(1) trailing", u"f(1) : (2)", u"f(\"a:b) ' c"})
        EXPECT_THROW(parseScriptLine(bad), UsageError) << toUtf8(bad);
}

TEST(CliLiteral, ScriptLinesHoldSeveralCallsAndComments) {
    // ":" separates calls, but not inside a string, a date or name:=value.
    auto calls =
        parseScriptLine(u"f(\"a:b ' c\", #2024-03-15 13:45:00#) : g x:=1: h 2, 3 ' f(\"comment\")");
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_EQ(calls[0].arguments[0].value, Variant(u"a:b ' c"));
    EXPECT_EQ(calls[1].member, u"g");
    EXPECT_EQ(calls[1].arguments[0].name, u"x");
    EXPECT_EQ(calls[2].arguments.size(), 2u);

    EXPECT_EQ(parseScriptLine(u"f(1) Rem g(2)").size(), 1u);
    EXPECT_EQ(parseScriptLine(u"f Rem").size(), 1u);
    EXPECT_EQ(parseScriptLine(u"Remove(1)").front().member, u"Remove");
    EXPECT_TRUE(parseScriptLine(u"rem all of it").empty());
    EXPECT_TRUE(parseScriptLine(u"  ' all of it").empty());
    EXPECT_EQ(parseScriptLine(u"\uFEFFf(1)").front().member, u"f");
    EXPECT_EQ(parseScriptLine(u": f : : g :").size(), 2u);
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
