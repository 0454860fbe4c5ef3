#include "command_line.h"
#include "completion.h"
#include "literal.h"
#include "system_locale.h"

#include <gtest/gtest.h>

namespace velkor6::cli {
namespace {

using Words = std::vector<std::string>;

TEST(CliCommandLine, OptionsGoAnywhereBeforeDoubleDash) {
    CommandLine line = parseCommandLine(
        {"call", "--typed", "vkrMid", "--locale=de-DE", "-1", "--app", "demo", "--", "--let"});
    EXPECT_EQ(line.command, "call");
    EXPECT_EQ(line.words, (Words{"vkrMid", "-1", "--let"}));
    EXPECT_TRUE(line.options.typed);
    EXPECT_FALSE(line.options.let);
    EXPECT_EQ(line.options.locale, "de-DE");
    EXPECT_EQ(line.options.appName, "demo");

    line = parseCommandLine({"--app-version", "-2", "--typ", "--app-p=/x"});
    EXPECT_EQ(line.command, "");
    EXPECT_EQ(line.options.appVersion, "-2"); // checked later, with the other --app options
    EXPECT_TRUE(line.options.typed);
    EXPECT_EQ(line.options.appPath, "/x");

    line = parseCommandLine({"members", "--idl"});
    EXPECT_TRUE(line.idl);
    EXPECT_TRUE(parseCommandLine({"inflate", "--compatible"}).compatible);
    EXPECT_TRUE(parseCommandLine({"call", "-V"}).version);
    EXPECT_TRUE(parseCommandLine({"frobnicate", "--help"}).help);
}

TEST(CliCommandLine, UnusableCommandLinesNameTheProblem) {
    const std::pair<Words, std::string_view> cases[] = {
        {{"--frob"}, "unknown option '--frob'"},
        {{"-x"}, "unknown option '-x'"},
        {{"--app"}, "option '--app' needs a value"},
        {{"--app-p"}, "option '--app-path' needs a value"},
        {{"call", "f", "--locale"}, "option '--locale' needs a value"},
        {{"--typed=1"}, "option '--typed' takes no value"},
        {{"--app-"}, "ambiguous option '--app-'"},
        {{"--locale", "no-such_LOCALE"}, "--locale no-such_LOCALE: no such locale"},
        {{"--locale", "/etc"}, "no such locale"},
        {{"frobnicate"}, "unknown command 'frobnicate'"},
        {{"members", "--let"}, "option '--let' does not go with 'members'"},
        {{"--markdown"}, "option '--markdown' does not go with calls from standard input"},
        {{"members", "--idl", "--markdown"}, "exclude each other"},
        {{"inflate", "--strict", "--compatible"}, "exclude each other"},
        {{"deflate", "x"}, "deflate: unexpected argument 'x'"},
    };
    for (const auto& [args, message] : cases) {
        try {
            parseCommandLine(args);
            ADD_FAILURE() << args.front() << " was accepted";
        } catch (const UsageError& e) {
            EXPECT_NE(std::string_view(e.what()).find(message), std::string_view::npos)
                << args.front() << ": " << e.what();
        }
    }
    if (localeInstalled("C"))
        EXPECT_EQ(parseCommandLine({"--locale", "C"}).options.locale, "C");
    EXPECT_EQ(parseCommandLine({"--locale", "EN-us"}).options.locale, "EN-us");
}

TEST(CliCompletion, CompletesToTheCommonPrefixOfTheMatches) {
    const Words names{"help", "vkrFindSubString", "vkrFindFile", "vkrVal", "iniFile"};
    Completion c = complete("vkrfin", names);
    EXPECT_EQ(c.text, "vkrFind");
    EXPECT_EQ(c.matches, (Words{"vkrFindSubString", "vkrFindFile"}));
    c = complete("VKRV", names);
    EXPECT_EQ(c.text, "vkrVal");
    EXPECT_EQ(c.matches.size(), 1u);
    c = complete("zz", names);
    EXPECT_EQ(c.text, "zz");
    EXPECT_TRUE(c.matches.empty());
    EXPECT_EQ(complete("", names).text, "");

    EXPECT_EQ(wordStart("help vkrF"), 5u);
    EXPECT_EQ(wordStart("f(1, vkr_x"), 5u);
    EXPECT_EQ(wordStart("x "), 2u);
}

} // namespace
} // namespace velkor6::cli
