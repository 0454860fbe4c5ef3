#include "core/text.h"
#include "platform/posix/command_words.h"
#include "platform/posix/fd.h"
#include "platform/posix/services.h"
#include "platform/posix/utf8_path.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace velkor6::posix {
namespace {

// Results as the system's shell execution gives them.
constexpr std::int32_t fileNotFound = 2;
constexpr std::int32_t noAssociation = 31;
constexpr std::int32_t started = 42;

bool isExecutableFile(const std::string& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) &&
           ::access(path.c_str(), X_OK) == 0;
}

// The program a command word names: a word with a "/" as it is, any other word looked up in
// PATH. Found here, before any fork, so that the child has nothing left to search.
std::optional<std::string> findProgram(const std::string& word) {
    if (word.empty())
        return std::nullopt;
    if (word.find('/') != std::string::npos)
        return isExecutableFile(word) ? std::optional(word) : std::nullopt;
    const char* path = std::getenv("PATH");
    std::string_view dirs = path != nullptr ? path : "/usr/local/bin:/usr/bin:/bin";
    while (true) {
        const std::size_t colon = dirs.find(':');
        const std::string_view dir = dirs.substr(0, colon);
        const std::string candidate =
            (dir.empty() ? std::string(".") : std::string(dir)) + "/" + word;
        if (isExecutableFile(candidate))
            return candidate;
        if (colon == std::string_view::npos)
            return std::nullopt;
        dirs.remove_prefix(colon + 1);
    }
}

// Starts argv (its first word a command) in directory ("" for ours) with its standard streams
// on /dev/null, and returns once it runs, without waiting for it to end. The program runs as a
// grandchild whose parent ends at once, so it is no child of ours and leaves no zombie behind.
// False when the program cannot be found or started.
bool startDetached(std::vector<std::string> args, const std::string& directory) {
    if (args.empty())
        return false;
    const auto program = findProgram(args[0]);
    if (!program)
        return false;
    std::vector<char*> argv;
    for (auto& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);

    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0)
        return false;
    const Fd readEnd(fds[0]);
    Fd writeEnd(fds[1]);
    // Between fork and exec only async-signal-safe calls: everything else is ready above.
    const pid_t child = ::fork();
    if (child < 0)
        return false;
    if (child == 0) {
        const pid_t grandchild = ::fork();
        if (grandchild == 0) {
            ::setsid();
            if (!directory.empty() && ::chdir(directory.c_str()) != 0) {
                // Started from the folder we are in, as a failed "cd" always left it.
            }
            const int null = ::open("/dev/null", O_RDWR);
            if (null >= 0) {
                ::dup2(null, 0);
                ::dup2(null, 1);
                ::dup2(null, 2);
            }
            ::execve(program->c_str(), argv.data(), environ);
            const int error = errno;
            [[maybe_unused]] const auto n = ::write(fds[1], &error, sizeof error);
            ::_exit(127);
        }
        ::_exit(grandchild < 0 ? 1 : 0);
    }
    writeEnd.close();
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) != 0)
        return false;
    // The pipe closes on exec; an error number in it means exec failed.
    int error = 0;
    ssize_t n;
    while ((n = ::read(readEnd.get(), &error, sizeof error)) < 0 && errno == EINTR) {
    }
    return n == 0;
}

class PosixShell final : public Shell {
public:
    // Documents open with the desktop's opener (xdg-open); the "edit" verb takes the user's
    // editor ($VISUAL, then $EDITOR) where one is set. An executable file is started with the
    // parameters. No shell reads any of it: the file is one word of the program's arguments.
    std::int32_t execute(std::u16string_view verb, std::u16string_view file,
                         std::u16string_view parameters, std::u16string_view directory,
                         std::int32_t) override {
        if (file.empty())
            return fileNotFound;
        const std::string dir = directory.empty() ? std::string() : nativePath(directory);
        std::string path = nativePath(file);
        if (path[0] != '/') {
            const std::string base = dir.empty() ? std::string(".") : dir;
            path = base + (base.back() == '/' ? "" : "/") + path;
        }
        if (::access(path.c_str(), F_OK) != 0)
            return fileNotFound;

        std::vector<std::string> args;
        if (isExecutableFile(path)) {
            auto words = splitCommandWords(toUtf8(parameters));
            if (!words)
                return noAssociation;
            args.push_back(path);
            args.insert(args.end(), words->begin(), words->end());
        } else {
            if (textEqual(verb, u"edit", Compare::Text))
                args = editorWords();
            if (args.empty())
                args = {"xdg-open"};
            args.push_back(path);
        }
        return startDetached(std::move(args), dir) ? started : noAssociation;
    }

    bool startWithFile(std::u16string_view command, std::u16string_view file,
                       std::int32_t) override {
        auto words = commandWithFile(toUtf8(command), nativePath(file));
        return words && startDetached(std::move(*words), {});
    }

private:
    // The words of $VISUAL, else of $EDITOR; none when neither is set.
    static std::vector<std::string> editorWords() {
        for (const char* name : {"VISUAL", "EDITOR"}) {
            const char* value = std::getenv(name);
            if (value == nullptr || *value == '\0')
                continue;
            auto words = splitCommandWords(value);
            return words ? std::move(*words) : std::vector<std::string>{};
        }
        return {};
    }
};

} // namespace

std::unique_ptr<Shell> createShell() {
    return std::make_unique<PosixShell>();
}

} // namespace velkor6::posix
