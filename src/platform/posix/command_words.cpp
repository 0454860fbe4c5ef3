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

} // namespace velkor6::posix
