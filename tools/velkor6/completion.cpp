#include "completion.h"

#include <algorithm>
#include <cctype>

namespace velkor6::cli {
namespace {

bool sameLetter(char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
}

bool isNameChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

} // namespace

Completion complete(std::string_view word, const std::vector<std::string>& names) {
    Completion result;
    for (const std::string& name : names) {
        if (name.size() >= word.size() &&
            std::equal(word.begin(), word.end(), name.begin(), sameLetter))
            result.matches.push_back(name);
    }
    if (result.matches.empty()) {
        result.text = word;
        return result;
    }
    result.text = result.matches.front();
    for (const std::string& other : result.matches) {
        const auto end = std::mismatch(result.text.begin(), result.text.end(), other.begin(),
                                       other.end(), sameLetter);
        result.text.erase(end.first, result.text.end());
    }
    return result;
}

std::size_t wordStart(std::string_view line) {
    std::size_t start = line.size();
    while (start > 0 && isNameChar(line[start - 1]))
        --start;
    return start;
}

} // namespace velkor6::cli
