#include "fake/temp_folder.h"
#include "files/registry_scripts.h"
#include "platform/posix/file_registry.h"
#include "platform/posix_test_env.h"
#include "velkor6/lib.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velkor6 {
namespace {

using posixtest::ScopedEnv;
using regtest::ansiScript;
using regtest::utf16Script;

constexpr RegHandle hkcu = regroot::currentUser;

TEST(PosixRegistry, ReadsTheScriptsOfItsFolder) {
    namespace fs = std::filesystem;
    const fake::TempFolder temp;
    const fs::path& folder = temp.path();
    temp.write("10-base.reg", ansiScript());
    // Applied after the first: overrides one value and adds a key.
    temp.write("20-more.REG",
               utf16Script(u"Windows Registry Editor Version 5.00\r\n\r\n"
                           u"[HKEY_CURRENT_USER\\Software\\Velkor Test]\r\n"
                           u"\"Text\"=\"second\"\r\n"
                           u"[HKEY_CURRENT_USER\\Software\\Velkor Test\\Leaf\\New]\r\n"));
    temp.write("30-ignored.txt", "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\Velkor Test]\r\n"
                                 "\"Number\"=\"1\"\r\n");

    std::unique_ptr<Platform> platform;
    {
        ScopedEnv registry("VELKOR6_REGISTRY", folder.c_str());
        EXPECT_EQ(posix::registryFolder(), folder);
        platform = Platform::createNative();
    }
    {
        ScopedEnv registry("VELKOR6_REGISTRY", nullptr);
        ScopedEnv config("XDG_CONFIG_HOME", "/srv/config");
        EXPECT_EQ(posix::registryFolder(), fs::path("/srv/config/velkor6"));
    }
    lib l(std::make_shared<Module>(std::move(platform), Locale::englishUS()));
    const std::u16string_view key = u"Software\\Velkor Test";
    EXPECT_EQ(l.regGetString(hkcu, key, u"Text"), u"second");
    EXPECT_EQ(l.regGetLong(hkcu, key, u"Number"), 42);
    EXPECT_EQ(l.regGetLong(hkcu, key, u"Dword"), -1);
    EXPECT_EQ(l.regSubKeyCount(hkcu, std::u16string(key) + u"\\Leaf"), 2);
}

TEST(PosixRegistry, NamesAndTextsKeepEveryCharacter) {
    const fake::TempFolder temp;
    // UTF-8 without a mark, as editors here save it.
    temp.write("city.reg", "Windows Registry Editor Version 5.00\n"
                           "[HKEY_CURRENT_USER\\Software\\\xC5\x81\xC3\xB3"
                           "d\xC5\xBA]\n"
                           "\"Name\"=\"\xC5\x81\xC3\xB3"
                           "d\xC5\xBA\"\n"
                           "\"\xD0\x96\"=\"\xD0\x96\xD1\x83\xD0\xBA\"\n"
                           "[HKEY_CURRENT_USER\\Software\\\xC5\x81\xC3\xB3"
                           "d\xC5\xBA\\\xD0\x96]\n");
    auto platform = std::make_unique<Platform>();
    platform->registry = posix::createFileRegistry(temp.path());
    lib l(std::make_shared<Module>(std::move(platform), Locale::englishUS()));
    const std::u16string key = u"Software\\\u0141\u00F3d\u017A";
    EXPECT_EQ(l.regGetString(hkcu, key, u"Name"), u"\u0141\u00F3d\u017A");
    EXPECT_EQ(l.regGetValue(hkcu, u"SOFTWARE\\\u0142\u00D3D\u017A", u"\u0436"),
              Variant(u"\u0416\u0443\u043A"));
    VariantArray keys;
    l.regFindKeys(hkcu, key, keys);
    ASSERT_EQ(keys.items.size(), 1u);
    EXPECT_EQ(keys.items[0].string(), u"\u0416");
    EXPECT_EQ(l.regSubKeyCount(hkcu, key), 2);
}

} // namespace
} // namespace velkor6
