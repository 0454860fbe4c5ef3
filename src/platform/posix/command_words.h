// Command lines split into the words a program receives, without a shell.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::posix {

// Blanks separate words. Single quotes keep everything up to the next one as it is; double
// quotes keep blanks, and inside them a backslash only escapes $, `, " and \; outside quotes a
// backslash keeps the next character. Nothing else is special: no variables, no substitutions,
// no operators. nullopt when a quote is not closed or the line ends in a lone backslash.
std::optional<std::vector<std::string>> splitCommandWords(std::string_view line);

// The command's words with every "%1" inside a word replaced by file. The file never becomes
// part of the line that is split, so nothing in its name can add words or change their meaning.
std::optional<std::vector<std::string>> commandWithFile(std::string_view command,
                                                        std::string_view file);

// The arguments as one command line that a Windows program reads back into the same words; the
// first is the program, whose name is read without escapes.
std::u16string windowsCommandLine(const std::vector<std::u16string>& args);

} // namespace velkor6::posix
