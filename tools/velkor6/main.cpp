// velkor6: calls the library's members by name from the command line.
#include "build_info.h"
#include "command_line.h"
#include "commands.h"
#include "lib/idl.h"
#include "literal.h"
#include "lzw_command.h"
#include "prompt.h"
#include "system_locale.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace velkor6::cli;

void printVersion() {
    std::cout << "velkor6 " << libraryVersion << '\n'
              << "build: " << buildType << ", " << __DATE__ << '\n'
              << "platform: " << buildPlatform << ", " << compiler << '\n';
}

int runPrompt(const Options& options) {
    // libedit reads multibyte characters by the C library's character type.
    std::setlocale(LC_CTYPE, "");
    Prompt prompt(completionWords(), historyFile());
    std::cout << "velkor6 " << libraryVersion
              << ": calls in VB syntax; help, help MEMBER, quit. Tab completes names.\n";
    return runScript(
        options, [&prompt] { return prompt.readLine(); }, std::cout, std::cerr);
}

int run(const CommandLine& line) {
    if (line.help) {
        std::cout << helpText;
        return 0;
    }
    if (line.version) {
        printVersion();
        return 0;
    }
    if (!line.options.locale.empty() && localeInstalled(line.options.locale))
        useSystemLocale(line.options.locale);
    if (line.command.empty()) {
        if (isatty(0) != 0)
            return runPrompt(line.options);
        return runScript(line.options, streamLines(std::cin), std::cout, std::cerr);
    }
    if (line.command == "call")
        return runCall(line.options, line.words, std::cout, std::cerr);
    if (line.command == "members") {
        if (line.idl) {
            velkor6::typelib::writeIdl(std::cout);
            return 0;
        }
        return runMembers(line.markdown, std::cout);
    }
    if (line.command == "deflate")
        return runDeflate(std::cin, std::cout);
    return runInflate(std::cin, std::cout, !line.compatible);
}

// Output that did not reach its file (a full disk, a reader that has gone) is a failure, as in
// any GNU program.
int checkOutput(int status) {
    std::cout.flush();
    if (std::cout && std::ferror(stdout) == 0 && std::fflush(stdout) == 0)
        return status;
    // Once a write failed, the stream keeps only that it failed; one more write of what is
    // still buffered, or of nothing, tells why.
    std::clearerr(stdout);
    errno = 0;
    if (std::fputc('\n', stdout) != EOF)
        std::fflush(stdout);
    const int error = errno;
    std::cerr << "velkor6: write error" << (error != 0 ? ": " : "")
              << (error != 0 ? std::strerror(error) : "") << '\n';
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    CommandLine line;
    try {
        line = parseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const UsageError& e) {
        std::cerr << "velkor6: " << e.what() << "\nTry 'velkor6 --help' for more information.\n";
        return 2;
    }
    return checkOutput(run(line));
}
