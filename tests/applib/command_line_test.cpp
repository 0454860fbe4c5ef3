#include "applib/command_line.h"
#include "fake/error_of.h"
#include "fake/fake_platform.h"
#include "lib/applib_members.h"
#include "velkor6/applib.h"
#include "velkor6/record_object.h"

#include <gtest/gtest.h>

namespace velkor6::app {
namespace {

std::vector<std::u16string> words(std::u16string_view line, bool withProgram = false) {
    std::vector<std::u16string> out;
    for (auto& w : splitCommandWords(line, withProgram))
        out.push_back(w.text);
    return out;
}

TEST(CommandWords, FollowTheWindowsQuotingRules) {
    using W = std::vector<std::u16string>;
    const struct {
        std::u16string_view line;
        W expected;
    } cases[] = {
        {u"", {}},
        {u"  a \t b  ", {u"a", u"b"}},
        {uR"("a b" c)", {u"a b", u"c"}},
        {uR"(a"b c"d)", {u"ab cd"}},
        {uR"("")", {u""}},
        {uR"(a "" b)", {u"a", u"", u"b"}},
        {uR"(a\b c\\d)", {uR"(a\b)", uR"(c\\d)"}}, // backslashes without a quote
        {uR"(a\\"b c" d)", {uR"(a\b c)", u"d"}},   // 2n: n and the quote toggles
        {uR"(a\"b c)", {uR"(a"b)", u"c"}},         // 2n+1: n and a literal quote
        {uR"(a\\\"b)", {uR"(a\"b)"}},              // 3 -> 1 and a literal quote
        {uR"("a\\" b)", {uR"(a\)", u"b"}},         // path ending in a backslash
        {uR"("a""b" c)", {uR"(a"b c)"}},     // "" inside: a quote and the part ends; b" opens one
        {uR"("a""b c")", {uR"(a"b)", u"c"}}, // ... so the blank separates
        {uR"(""")", {uR"(")"}},
        {uR"("""a b""")", {uR"("a)", uR"(b")"}},
        {uR"("unclosed part)", {u"unclosed part"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(words(c.line), c.expected) << std::string(c.line.begin(), c.line.end());

    // The program's name is read without escapes and dropped.
    EXPECT_EQ(words(uR"("C:\Program Files\x.exe" /a b)", true), (W{u"/a", u"b"}));
    EXPECT_EQ(words(uR"(C:\x\"y.exe /a)", true), (W{u"/a"}));
    EXPECT_EQ(words(u"x.exe", true), W{});
}

std::vector<std::pair<std::u16string, std::u16string>> params(std::u16string_view line) {
    std::vector<std::pair<std::u16string, std::u16string>> out;
    for (auto& p : readCommandParams(splitCommandWords(line, false)))
        out.emplace_back(p.name, p.value);
    return out;
}

TEST(CommandParams, SwitchesValuesAndPositionalWords) {
    using P = std::vector<std::pair<std::u16string, std::u16string>>;
    EXPECT_EQ(params(uR"(/user=Anna -Verbose "C:\My Files\a.txt" --out:x.log -n 5 -- -q)"),
              (P{{u"user", u"Anna"},
                 {u"Verbose", uR"(C:\My Files\a.txt)"},
                 {u"out", u"x.log"},
                 {u"n", u"5"},
                 {u"", u"-q"}}));
    EXPECT_EQ(params(u"/a /b c"), (P{{u"a", u""}, {u"b", u"c"}}));
    EXPECT_EQ(params(u"/x= /y:a=b:c"), (P{{u"x", u""}, {u"y", u"a=b:c"}}));
    // Numbers, a lone prefix and quoted words are values.
    EXPECT_EQ(
        params(uR"(-5 -.5 - / "/q" /n -7)"),
        (P{{u"", u"-5"}, {u"", u"-.5"}, {u"", u"-"}, {u"", u"/"}, {u"", u"/q"}, {u"n", u"-7"}}));
    EXPECT_EQ(params(u"/=x -:y"), (P{{u"", u"/=x"}, {u"", u"-:y"}}));
    EXPECT_EQ(params(uR"(a "--" -- -- /b)"),
              (P{{u"", u"a"}, {u"", u"--"}, {u"", u"--"}, {u"", u"/b"}}));
}

TEST(CommandLineMembers, ReadTheHostsOwnLineOrAGivenOne) {
    fake::FakePlatform fp;
    fp.environment.setCommandLine(uR"("C:\Program Files\Sales\sales.exe" /DB=main report.txt)");
    applib app(fp.module);
    // Nothing read yet: the members read the process's line.
    EXPECT_TRUE(app.cmdHasParam(u"db"));
    EXPECT_TRUE(app.cmdHasParam(u"--DB"));
    EXPECT_FALSE(app.cmdHasParam(u""));
    EXPECT_EQ(app.cmdParam(u"/db").string(), u"main");
    EXPECT_EQ(app.cmdParam(std::int32_t{1}).string(), u"report.txt");

    EXPECT_EQ(app.splitCommandLine(u"-v 1 -V 2 x -flag"), 4);
    EXPECT_EQ(app.cmdParam(u"v").string(), u"2"); // the last one wins
    EXPECT_EQ(app.cmdParam(u"flag", u"none").string(), u"");
    EXPECT_EQ(app.cmdParam(u"db", std::int32_t{7}).longValue(), 7);
    EXPECT_EQ(app.cmdParam(2.0, u"none").string(), u"none");
    EXPECT_EQ(errorOf([&] { app.cmdParam(Variant::null()); }), vberr::invalidUseOfNull);
    EXPECT_EQ(errorOf([&] { app.cmdParam(1e12); }), vberr::overflow);
    EXPECT_EQ(app.splitCommandLine(u""), 0);
    EXPECT_TRUE(app.cmdParams().empty());
    // The host's line again when the argument is missing.
    EXPECT_EQ(app.splitCommandLine(), 2);
}

TEST(CommandLineMembers, ListParamsAsRecords) {
    fake::FakePlatform fp;
    auto app = std::make_shared<applib>(fp.module);
    app->splitCommandLine(u"/a=1 b");
    const ObjectRef object = dispatch::applibObject(app);
    const Variant list = object->call(u"cmdParams", CallKind::Method, {});
    ASSERT_TRUE(list.isArray());
    const VariantArray& items = list.array();
    ASSERT_EQ(items.items.size(), 2u);
    EXPECT_EQ(items.bounds[0].lower, 0);
    auto* first = dynamic_cast<RecordObject*>(items.items[0].object().get());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->typeName(), u"typCmdParam");
    EXPECT_EQ(first->field(u"name")->string(), u"a");
    EXPECT_EQ(first->field(u"VALUE")->string(), u"1");
    auto* second = dynamic_cast<RecordObject*>(items.items[1].object().get());
    EXPECT_EQ(second->field(u"Name")->string(), u"");
}

} // namespace
} // namespace velkor6::app
