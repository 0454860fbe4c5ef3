// Settings files read and written like the system's private-profile functions do it, with two
// guarantees of our own: a write never loses the settings of another writer (a lock for the
// read-modify-write, and a new file renamed over the old one), and a read parses the file again
// only when it has changed on disk.
#pragma once

#include "applib/ini_document.h"
#include "velkor6/platform/platform.h"

#include <optional>
#include <string>
#include <string_view>

namespace velkor6::app {

class ProfileFile final : public SettingsFiles {
public:
    explicit ProfileFile(Platform& platform) : platform_(platform) {}

    std::u16string read(std::u16string_view path, std::u16string_view section,
                        std::u16string_view key) override;
    // True also when nothing had to change.
    bool write(std::u16string_view path, std::u16string_view section, std::u16string_view key,
               std::optional<std::u16string_view> value) override;

private:
    struct Cached {
        std::u16string path;
        FileIdentity identity;
        IniDocument document;
    };

    std::u16string resolve(std::u16string_view path) const;
    std::optional<IniDocument> load(const std::u16string& path);

    Platform& platform_;
    std::optional<Cached> cache_;
};

} // namespace velkor6::app
