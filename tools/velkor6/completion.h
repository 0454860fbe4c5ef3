// Completing a word typed at the prompt against a list of names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velkor6::cli {

struct Completion {
    std::string text;                 // what the word becomes: the matches' common prefix
    std::vector<std::string> matches; // every name that starts with the word, in list order
};

// Names are matched and their common prefix taken without regard to ASCII case, as VB names
// are; the text takes the spelling of the first match.
Completion complete(std::string_view word, const std::vector<std::string>& names);

// Where the word being typed starts: after the last character that cannot be part of a name.
std::size_t wordStart(std::string_view line);

} // namespace velkor6::cli
