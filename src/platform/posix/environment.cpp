#include "core/text.h"
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
};

} // namespace

std::unique_ptr<Environment> createEnvironment() {
    return std::make_unique<PosixEnvironment>();
}

} // namespace velkor6::posix
