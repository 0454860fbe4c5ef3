// Reading of registry export scripts (.reg files), as the registry editor writes them: "REGEDIT4"
// in the ANSI code page and "Windows Registry Editor Version 5.00" in UTF-16 with a byte-order
// mark.
#pragma once

#include "velkor6/platform/registry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

// One statement of a script, in file order.
struct RegStatement {
    enum class Kind { Key, DeleteKey, Value, DeleteValue };

    Kind kind = Kind::Key;
    RegHandle root = 0;
    std::u16string path; // below the root, names separated by "\"; "" is the root itself
    std::u16string name; // value name; "" is the key's default value ("@")
    std::uint32_t type = regtype::none;
    std::string data; // stored form: text types as UTF-16 little-endian, the rest as written
};

// The predefined root a script names: the full names and the short forms HKCR, HKCU, HKLM, HKU
// and HKCC, in any letter case.
std::optional<RegHandle> regRootFromName(std::u16string_view name);

// The script's text: UTF-16 LE after its byte-order mark, UTF-8 after its mark or when the bytes
// are valid UTF-8, else the ANSI code page.
std::u16string decodeRegScript(std::string_view bytes);

// The statements of a script; nullopt when the text does not start with one of the two headers.
// Lines that cannot be read, and values outside a known key, are skipped.
std::optional<std::vector<RegStatement>> parseRegScript(std::u16string_view text);

} // namespace velkor6
