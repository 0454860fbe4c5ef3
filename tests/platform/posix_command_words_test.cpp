// Command lines split into words the way the POSIX shell service starts them.
#include "platform/posix/command_words.h"

#include <gtest/gtest.h>

namespace velkor6::posix {
namespace {

using Words = std::vector<std::string>;

TEST(CommandWords, QuotesGroupAndNothingIsExpanded) {
    struct Case {
        std::string_view line;
        std::optional<Words> words;
    };
    const Case cases[] = {
        {"", Words{}},
        {"  gedit\t--new-window  ", Words{"gedit", "--new-window"}},
        {R"('/opt/My Editor/ed' "-a b" c)", Words{"/opt/My Editor/ed", "-a b", "c"}},
        {R"(x"y z"'w')", Words{"xy zw"}},
        {R"("" '')", Words{"", ""}},
        {R"("a\"b\\c\$d\n")", Words{R"(a"b\c$d\n)"}},
        {R"(a\ b \' \")", Words{"a b", "'", "\""}},
        {"$(touch X);b `id` $HOME|x>y", Words{"$(touch", "X);b", "`id`", "$HOME|x>y"}},
        {"ed 'open", std::nullopt},
        {"ed \"open", std::nullopt},
        {"ed \\", std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.line));
        EXPECT_EQ(splitCommandWords(c.line), c.words);
    }
}

TEST(CommandWords, TheFileGoesIntoTheWordsAfterSplitting) {
    const std::string file = "/tmp/a$(touch X);b'\"c d/%1.ini";
    EXPECT_EQ(commandWithFile(R"(ed --file="%1" '%1' -x)", file),
              (Words{"ed", "--file=" + file, file, "-x"}));
    EXPECT_EQ(commandWithFile("ed %1%1", "f"), (Words{"ed", "ff"}));
    EXPECT_EQ(commandWithFile("ed '%1", "f"), std::nullopt);
}

} // namespace
} // namespace velkor6::posix
