#include "platform/posix/command_words.h"

namespace velkor6::posix {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool escapableInDoubleQuotes(char c) {
    return c == '$' || c == '`' || c == '"' || c == '\\';
}

} // namespace

std::optional<std::vector<std::string>> splitCommandWords(std::string_view line) {
    std::vector<std::string> words;
    std::string word;
    bool inWord = false; // "" is a word of its own
    std::size_t i = 0;
    while (i < line.size()) {
        const char c = line[i++];
        if (isBlank(c)) {
            if (inWord)
                words.push_back(std::move(word));
            word.clear();
            inWord = false;
            continue;
        }
        inWord = true;
        if (c == '\'') {
            const std::size_t end = line.find('\'', i);
            if (end == std::string_view::npos)
                return std::nullopt;
            word.append(line.substr(i, end - i));
            i = end + 1;
        } else if (c == '"') {
            for (;;) {
                if (i >= line.size())
                    return std::nullopt;
                const char d = line[i++];
                if (d == '"')
                    break;
                if (d == '\\' && i < line.size() && escapableInDoubleQuotes(line[i]))
                    word += line[i++];
                else
                    word += d;
            }
        } else if (c == '\\') {
            if (i >= line.size())
                return std::nullopt;
            word += line[i++];
        } else {
            word += c;
        }
    }
    if (inWord)
        words.push_back(std::move(word));
    return words;
}

std::optional<std::vector<std::string>> commandWithFile(std::string_view command,
                                                        std::string_view file) {
    auto words = splitCommandWords(command);
    if (!words)
        return std::nullopt;
    for (std::string& word : *words) {
        for (std::size_t at = word.find("%1"); at != std::string::npos;
             at = word.find("%1", at + file.size()))
            word.replace(at, 2, file);
    }
    return words;
}

namespace {

// One argument written so that the Windows rules read it back unchanged.
void appendQuoted(std::u16string& line, std::u16string_view arg) {
    if (!arg.empty() && arg.find_first_of(u" \t\"") == std::u16string_view::npos) {
        line += arg;
        return;
    }
    // A switch stays one: its prefix stands before the quoted part.
    if (arg.starts_with(u'/') || arg.starts_with(u'-')) {
        line += arg.front();
        arg.remove_prefix(1);
    }
    line += u'"';
    std::size_t backslashes = 0;
    for (const char16_t c : arg) {
        if (c == u'\\') {
            ++backslashes;
            continue;
        }
        // Backslashes before a quote double, and the quote gets one of its own.
        line.append(c == u'"' ? 2 * backslashes + 1 : backslashes, u'\\');
        backslashes = 0;
        line += c;
    }
    line.append(2 * backslashes, u'\\');
    line += u'"';
}

} // namespace

std::u16string windowsCommandLine(const std::vector<std::u16string>& args) {
    std::u16string line;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (i > 0)
            line += u' ';
        if (i == 0 && args[i].find(u'"') == std::u16string::npos)
            line += u'"' + args[i] + u'"';
        else
            appendQuoted(line, args[i]);
    }
    return line;
}

} // namespace velkor6::posix
