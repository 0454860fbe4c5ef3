// A client that includes the system's headers first still compiles with the public enumerations,
// and both agree on every value the system defines.
// clang-format off
#include <windows.h>
#include <shlobj.h>
// clang-format on

#include "velkor6/enums.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace {

std::int32_t valueOf(std::span<const velkor6::EnumMember> members, std::u16string_view name) {
    for (const auto& m : members) {
        if (m.name == name)
            return m.value;
    }
    return -1;
}

TEST(EnumsAfterWindowsHeaders, KeepTheSystemsMacrosAndValues) {
    // Still the system's macros after the header: a key handle, a folder number, a right.
    const HKEY root = HKEY_CLASSES_ROOT;
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(root),
              static_cast<std::int32_t>(valueOf(velkor6::registryKeysMembers,
                                                u"HKEY_CLASSES_ROOT")));
    EXPECT_EQ(valueOf(velkor6::specialFolderConstsMembers, u"CSIDL_APPDATA"), CSIDL_APPDATA);
    EXPECT_EQ(valueOf(velkor6::registryRightsMembers, u"KEY_QUERY_VALUE"), KEY_QUERY_VALUE);
    EXPECT_EQ(valueOf(velkor6::registryValueTypesMembers, u"REG_DWORD"), REG_DWORD);
    EXPECT_EQ(valueOf(velkor6::registryErrorCodeConstantsMembers, u"ERROR_ACCESS_DENIED"),
              ERROR_ACCESS_DENIED);
    EXPECT_EQ(valueOf(velkor6::buttonStyleConstsMembers, u"BS_CENTER"), BS_CENTER);
    EXPECT_EQ(valueOf(velkor6::buttonStyleConstsMembers, u"BS_TOP"), BS_TOP);
}

} // namespace
