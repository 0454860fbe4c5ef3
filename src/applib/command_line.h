// A Windows-style command line split into words and read as named and positional parameters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velkor6::app {

struct CommandWord {
    std::u16string text;
    bool quotedStart = false; // its first character came from a quoted part
};

// The words of a command line by the rules programs on Windows read their arguments with:
// blanks and tabs separate words outside quotes; 2n backslashes before a quote give n
// backslashes and the quote opens or closes a quoted part, 2n+1 give n and a literal quote;
// other backslashes are literal; inside a quoted part two quotes give one literal quote and end
// the part. With `withProgram` the first word is the program's name (up to the next blank, or
// inside quotes to the next quote, no escapes) and is dropped.
std::vector<CommandWord> splitCommandWords(std::u16string_view line, bool withProgram);

struct CommandParam {
    std::u16string name;  // "" for a positional parameter
    std::u16string value; // "" for a switch without a value
};

// Switches (/name, -name, --name) with a value after "=" or ":" or in the next word, and
// positional words, in command-line order. A lone "--" ends the switches.
std::vector<CommandParam> readCommandParams(const std::vector<CommandWord>& words);

// A switch name as a caller writes it: a leading "/", "-" or "--" is not part of it.
std::u16string_view bareSwitchName(std::u16string_view name);

} // namespace velkor6::app
