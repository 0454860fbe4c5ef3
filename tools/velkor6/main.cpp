// velkor6: calls the library's members by name from the command line.
#include "commands.h"
#include "lib/idl.h"
#include "lzw_command.h"

#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char* usage =
    "usage: velkor6 [--typed] [--locale de-DE|en-US]          calls in VB syntax from stdin\n"
    "       velkor6 call [--typed] [--let] [--locale NAME] MEMBER [ARG ...]\n"
    "       velkor6 --app NAME [--app-path DIR] [--app-version 6.1.23] call MEMBER [ARG ...]\n"
    "       velkor6 members [--markdown | --idl]\n"
    "       velkor6 deflate < text > packed\n"
    "       velkor6 inflate [--compatible] < packed > text\n"
    "         gives back exactly the text deflate packed; --compatible decodes as the\n"
    "         \"Inflate\" member does, which alters texts long enough to fill its dictionary\n";

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    velkor6::cli::Options options;
    std::string command;
    std::vector<std::string> rest;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& w = words[i];
        const bool optionsAllowed = rest.empty();
        if (optionsAllowed && w == "--typed") {
            options.typed = true;
        } else if (optionsAllowed && w == "--let") {
            options.let = true;
        } else if (optionsAllowed && w == "--locale") {
            if (i + 1 == words.size()) {
                std::cerr << usage;
                return 2;
            }
            options.locale = words[++i];
        } else if (optionsAllowed && (w == "--app" || w == "--app-path" || w == "--app-version")) {
            if (i + 1 == words.size()) {
                std::cerr << usage;
                return 2;
            }
            std::string& target = w == "--app"        ? options.appName
                                  : w == "--app-path" ? options.appPath
                                                      : options.appVersion;
            target = words[++i];
        } else if (optionsAllowed && (w == "--help" || w == "-h")) {
            std::cout << usage;
            return 0;
        } else if (command.empty()) {
            command = w;
        } else {
            rest.push_back(w);
        }
    }

    if (command.empty())
        return velkor6::cli::runScript(options, std::cin, std::cout, std::cerr, isatty(0) != 0);
    if (command == "call")
        return velkor6::cli::runCall(options, rest, std::cout, std::cerr);
    if (command == "members") {
        if (rest.size() == 1 && rest[0] == "--idl") {
            velkor6::typelib::writeIdl(std::cout);
            return 0;
        }
        const bool markdown = rest.size() == 1 && rest[0] == "--markdown";
        if (!rest.empty() && !markdown) {
            std::cerr << usage;
            return 2;
        }
        return velkor6::cli::runMembers(markdown, std::cout);
    }
    if (command == "deflate" && rest.empty())
        return velkor6::cli::runDeflate(std::cin, std::cout);
    // --strict names the default, which it was before the default changed.
    if (command == "inflate" && (rest.empty() || (rest.size() == 1 && (rest[0] == "--strict" ||
                                                                       rest[0] == "--compatible"))))
        return velkor6::cli::runInflate(std::cin, std::cout, rest.empty() || rest[0] == "--strict");
    std::cerr << "velkor6: unknown command '" << command << "'\n" << usage;
    return 2;
}
