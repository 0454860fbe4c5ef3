// The subcommands of the velkor6 program.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace velkor6::cli {

struct Options {
    bool typed = false;
    bool let = false;
    std::string locale; // empty: the user's locale; else a preset name (de-DE, en-US)
    // With an application name, calls go to the applib that vkrInitApp makes for it.
    std::string appName;
    std::string appPath; // empty: the current folder, made absolute
    std::string appVersion;
};

// velkor6 call [--typed] [--let] [--locale NAME] MEMBER [ARG ...]
int runCall(const Options& options, const std::vector<std::string>& words, std::ostream& out,
            std::ostream& err);

// The next line of a script without its line end, or nullopt at its end.
using LineSource = std::function<std::optional<std::string>()>;
// velkor6 [--typed] [--locale NAME]: calls in VB syntax, one line at a time; also "help
// [MEMBER]" and "quit" or "exit". Returns 1 when a line failed, 2 for unusable options.
int runScript(const Options& options, const LineSource& lines, std::ostream& out,
              std::ostream& err);
// The lines of a stream.
LineSource streamLines(std::istream& in);

// velkor6 members [--markdown]
int runMembers(bool markdown, std::ostream& out);

// The names a prompt completes: every member of both classes and the prompt's own commands.
std::vector<std::string> completionWords();

} // namespace velkor6::cli
