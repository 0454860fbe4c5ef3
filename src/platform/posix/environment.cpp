#include "core/text.h"
#include "platform/posix/command_words.h"
#include "platform/posix/services.h"
#include "platform/posix/utf8_path.h"
#include "platform/posix/xdg_folders.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace velkor6::posix {
namespace {

std::optional<std::string> getVariable(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr)
        return std::nullopt;
    return std::string(value);
}

std::optional<std::string> readText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class PosixEnvironment final : public Environment {
public:
    std::u16string specialFolder(std::int32_t csidl) override {
        // Read afresh each time: the user may change the folders while the library runs.
        return fromNative(specialFolderPath(csidl, readXdgFolders(getVariable, readText)));
    }

    bool userIsAdmin() override { return ::geteuid() == 0; }

    std::optional<std::u16string> variable(std::u16string_view name) override {
        const auto value = getVariable(toUtf8(name).c_str());
        if (!value)
            return std::nullopt;
        return fromNative(*value);
    }

    std::u16string commandLine() override {
        const std::string raw = readText("/proc/self/cmdline").value_or(std::string());
        std::vector<std::u16string> args;
        for (std::size_t start = 0; start < raw.size();) {
            std::size_t end = raw.find('\0', start);
            if (end == std::string::npos)
                end = raw.size();
            args.push_back(fromNative(std::string_view(raw).substr(start, end - start)));
            start = end + 1;
        }
        return windowsCommandLine(args);
    }
};

} // namespace

std::unique_ptr<Environment> createEnvironment() {
    return std::make_unique<PosixEnvironment>();
}

} // namespace velkor6::posix
