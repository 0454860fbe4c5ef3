#include "core/text.h"
#include "platform/posix/services.h"
#include "platform/posix/utf8_path.h"

#include <cerrno>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace velkor6::posix {
namespace {

// Runs a shell script that starts its work in the background and returns at once; the
// started program is then no child of ours and needs no reaping. The script's exit status
// tells whether the start succeeded.
int runDetached(const std::string& script, const std::vector<std::string>& args) {
    std::vector<std::string> words = {"sh", "-c", script, "sh"};
    words.insert(words.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (auto& w : words)
        argv.push_back(w.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (::posix_spawn(&pid, "/bin/sh", nullptr, nullptr, argv.data(), environ) != 0)
        return -1;
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class PosixShell final : public Shell {
public:
    // Documents open with the desktop's opener (xdg-open); the "edit" verb takes the user's
    // editor ($VISUAL, then $EDITOR) where one is set. An executable file is started with the
    // parameters.
    std::int32_t execute(std::u16string_view verb, std::u16string_view file,
                         std::u16string_view parameters, std::u16string_view directory,
                         std::int32_t) override {
        if (file.empty())
            return 2; // file not found, as the system answers
        const std::string path = nativePath(file);
        const std::string dir = directory.empty() ? std::string(".") : nativePath(directory);
        const bool executable = ::access(path.c_str(), X_OK) == 0;
        const bool edit = textEqual(verb, u"edit", Compare::Text);
        const std::string opener = "command -v xdg-open >/dev/null 2>&1 || exit 31; "
                                   "xdg-open \"$2\" </dev/null >/dev/null 2>&1 &";
        const std::string editor =
            "e=\"${VISUAL:-$EDITOR}\"; [ -n \"$e\" ] || { " + opener +
            " exit 0; }; eval \"$e \\\"\\$2\\\"\" </dev/null >/dev/null 2>&1 &";
        std::string script = "cd \"$1\" 2>/dev/null; [ -e \"$2\" ] || exit 2; ";
        if (executable)
            script += "eval \"\\\"\\$2\\\" $3\" </dev/null >/dev/null 2>&1 &";
        else
            script += edit ? editor : opener;
        const int rc = runDetached(script, {dir, path, nativeText(parameters)});
        return rc == 0 ? 42 : rc > 0 && rc <= 32 ? rc : 31;
    }

    bool start(std::u16string_view commandLine, std::int32_t) override {
        if (commandLine.empty())
            return false;
        return runDetached("eval \"$1\" </dev/null >/dev/null 2>&1 &", {nativeText(commandLine)}) ==
               0;
    }

private:
    static std::string nativeText(std::u16string_view s) { return toUtf8(s); }
};

} // namespace

std::unique_ptr<Shell> createShell() {
    return std::make_unique<PosixShell>();
}

} // namespace velkor6::posix
