// The subcommands of the velkor6 program.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velkor6::cli {

struct Options {
    bool typed = false;
    bool let = false;
    std::string locale; // empty: the user's locale
    // With an application name, calls go to the applib that vkrInitApp makes for it.
    std::string appName;
    std::string appPath; // empty: the current folder, made absolute
    std::string appVersion;
};

// velkor6 call [--typed] [--let] [--locale NAME] MEMBER [ARG ...]
int runCall(const Options& options, const std::vector<std::string>& words, std::ostream& out,
            std::ostream& err);
// velkor6 [--typed] [--locale NAME]: calls in VB syntax, one per line.
int runScript(const Options& options, std::istream& in, std::ostream& out, std::ostream& err,
              bool interactive);
// velkor6 members [--markdown]
int runMembers(bool markdown, std::ostream& out);

} // namespace velkor6::cli
