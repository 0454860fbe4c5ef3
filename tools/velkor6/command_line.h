// The program's command line: GNU-style options anywhere before "--", a command and its words.
#pragma once

#include "commands.h"

#include <string>
#include <vector>

namespace velkor6::cli {

struct CommandLine {
    Options options;
    std::string command;            // empty: calls from standard input
    std::vector<std::string> words; // after the command: a member and its arguments
    bool help = false;
    bool version = false;
    bool markdown = false;   // members
    bool idl = false;        // members
    bool compatible = false; // inflate
};

// Reads the arguments after the program's name. A word that reads as a negative number (-1,
// -2.5) is an argument, not an option. Raises UsageError for an unknown or ambiguous option, a
// missing or unwanted value, an option the command does not take, an unknown command or
// --locale.
CommandLine parseCommandLine(const std::vector<std::string>& args);

// The text of --help.
extern const char* const helpText;

} // namespace velkor6::cli
