// Settings files in the INI format, read and written one key at a time: the system's
// private-profile functions where it has them.
#pragma once

#include "velkor6/export.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velkor6 {

class VELKOR6_API SettingsFiles {
public:
    // Values are at most this many characters long (the readers' buffer holds one more).
    static constexpr std::size_t maxValueLength = 2047;

    virtual ~SettingsFiles() = default;

    // The value of key in section, "" when the file, the section or the key is missing. A
    // relative file name means a file in the Windows folder; "" reads nothing.
    virtual std::u16string read(std::u16string_view path, std::u16string_view section,
                                std::u16string_view key) = 0;

    // Sets the key, or deletes it when value is nullopt. False when the file could not be
    // written.
    virtual bool write(std::u16string_view path, std::u16string_view section,
                       std::u16string_view key, std::optional<std::u16string_view> value) = 0;
};

} // namespace velkor6
