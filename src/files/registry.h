// Reading registry values and keys for the reg... members. Every function traps its failures and
// never raises.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/registry.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::files {

// The readers take the platform's registry; nullptr (a platform without one) reads like a registry
// in which no key opens.

// Stored data as the readers return it: text types without their terminating NUL, binary data one
// character per byte, a DWORD (either byte order) as a little-endian Long, "" for other types.
Variant registryDataValue(const RegValue& value, const Locale& loc);

// The reading routine the three value readers share: the value converted by type, or
// *defaultValue ("" without one) when the key does not open or the value cannot be read (missing,
// more than 1024 bytes). Unsupported types give "" even when a default was passed.
Variant readRegistryValue(Registry* reg, RegHandle key, std::u16string_view subKey,
                          std::u16string_view valueName, const Variant* defaultValue,
                          const Locale& loc);

// vDefaultValue Missing means no default.
Variant regGetValue(Registry* reg, RegHandle key, std::u16string_view subKey,
                    std::u16string_view valueName, const Variant& vDefaultValue, const Locale& loc);
std::int32_t regGetLong(Registry* reg, RegHandle key, std::u16string_view subKey,
                        std::u16string_view valueName, std::int32_t lDefaultValue,
                        const Locale& loc);
std::u16string regGetString(Registry* reg, RegHandle key, std::u16string_view subKey,
                            std::u16string_view valueName, std::u16string_view sDefaultValue,
                            const Locale& loc);

// Keys in the subtree of subKey, the key itself included; 0 when it does not open. A sub-key that
// does not open ends the counting at its level.
std::int32_t regSubKeyCount(Registry* reg, RegHandle key, std::u16string_view subKey);

// The names of subKey's direct sub-keys as a String array from 0, split again at any "|" inside a
// name; keys stays as it was when subKey does not open.
void regFindKeys(Registry* reg, RegHandle key, std::u16string_view subKey, VariantArray& keys);

} // namespace velkor6::files
