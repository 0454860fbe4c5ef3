#include "platform/posix/file_registry.h"

#include "platform/memory_registry.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <pwd.h>
#include <string>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace velkor6::posix {
namespace {

std::filesystem::path homeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return home;
    if (const passwd* pw = getpwuid(getuid()); pw != nullptr && pw->pw_dir != nullptr)
        return pw->pw_dir;
    return {};
}

bool hasRegExtension(const std::filesystem::path& file) {
    std::string ext = file.extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return ext == ".reg";
}

class FileRegistry final : public MemoryRegistry {
public:
    // Without a code page in between on this system, names and texts keep every character.
    explicit FileRegistry(std::filesystem::path folder)
        : MemoryRegistry(RegistryText::Whole), folder_(std::move(folder)) {}

    std::int32_t queryValue(RegHandle key, std::u16string_view name, std::size_t capacity,
                            RegValue& value) override {
        ensureLoaded();
        return MemoryRegistry::queryValue(key, name, capacity, value);
    }
    std::int32_t enumKey(RegHandle key, std::uint32_t index, std::size_t nameCapacity,
                         std::u16string& name) override {
        ensureLoaded();
        return MemoryRegistry::enumKey(key, index, nameCapacity, name);
    }

protected:
    std::int32_t openKey(RegHandle parent, std::u16string_view subKey, std::uint32_t access,
                         RegHandle& result) override {
        ensureLoaded();
        return MemoryRegistry::openKey(parent, subKey, access, result);
    }

private:
    // Reading waits for the first call, so that programs which never read the registry do not
    // pay for parsing its scripts.
    void ensureLoaded() {
        if (loaded_)
            return;
        loaded_ = true;
        std::error_code ec;
        std::vector<std::filesystem::path> files;
        for (std::filesystem::directory_iterator it(folder_, ec), end; !ec && it != end;
             it.increment(ec)) {
            if (it->is_regular_file(ec) && hasRegExtension(it->path()))
                files.push_back(it->path());
        }
        std::sort(files.begin(), files.end());
        for (const auto& file : files) {
            std::ifstream in(file, std::ios::binary);
            if (!in)
                continue; // an unreadable file is left out, like a key the user may not read
            const std::string bytes{std::istreambuf_iterator<char>(in),
                                    std::istreambuf_iterator<char>()};
            load(bytes);
        }
    }

    std::filesystem::path folder_;
    bool loaded_ = false;
};

} // namespace

std::filesystem::path registryFolder() {
    if (const char* dir = std::getenv("VELKOR6_REGISTRY"); dir != nullptr && *dir != '\0')
        return dir;
    // The XDG rules ignore a relative config home.
    if (const char* config = std::getenv("XDG_CONFIG_HOME"); config != nullptr && *config == '/')
        return std::filesystem::path(config) / "velkor6";
    return homeFolder() / ".config" / "velkor6";
}

std::unique_ptr<Registry> createFileRegistry(std::filesystem::path folder) {
    return std::make_unique<FileRegistry>(std::move(folder));
}

std::unique_ptr<Registry> createRegistry() {
    return createFileRegistry(registryFolder());
}

} // namespace velkor6::posix
