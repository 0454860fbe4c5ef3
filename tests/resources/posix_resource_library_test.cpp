// Resource libraries on a file system that tells letter case apart: the file the language list
// shows is the file that is loaded.
#include "fake/temp_folder.h"
#include "resources/pe_builder.h"
#include "resources/resource_library.h"
#include "velkor6/lib.h"
#include "velkor6/platform/platform.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

TEST(ResourceLibrariesOnPosix, TheFileOnDiskIsFoundInAnyLetterCase) {
    fake::TempFolder tmp;
    tmp.write("res_en.dll", "MZ");
    tmp.write("res_DE.dll", "MZ");
    tmp.write("res_fr.dll.bak", "MZ");
    auto platform = Platform::createNative();
    FileSystem& fs = *platform->fileSystem;
    const std::u16string setting = tmp.u16("res_%L.dll");
    struct Case {
        std::u16string setting;
        std::u16string_view language;
        std::optional<std::u16string> file;
    };
    const Case cases[] = {
        {setting, u"EN", tmp.u16("res_en.dll")},
        {setting, u"de", tmp.u16("res_DE.dll")},
        {setting, u"DE", tmp.u16("res_DE.dll")},
        {setting, u"FR", std::nullopt},
        // Without "%L" the setting names one file, exactly.
        {tmp.u16("res_EN.dll"), u"EN", std::nullopt},
        {tmp.u16("res_en.dll"), u"EN", tmp.u16("res_en.dll")},
        {u"", u"EN", std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.language.begin(), c.language.end()));
        EXPECT_EQ(resources::findResourceLibrary(fs, c.setting, c.language), c.file);
    }
}

TEST(ResourceLibrariesOnPosix, LoadResReadsTheLibraryTheLanguageListShows) {
    fake::TempFolder tmp;
    tmp.write("res_en.dll", test::buildResourceLibrary(
                                {{u"XML", std::uint16_t{1}, 0, "<resources>EN</resources>"}}));
    lib l(std::make_shared<Module>(Platform::createNative(), Locale::englishUS()));
    auto app = l.vkrInitApp(HostApp{tmp.u16(), u"ResTest", 1, 0, 0}, u"ResTest");
    if (!l.module().platform().xml)
        GTEST_SKIP() << "this platform has no XML service";
    app->stringValueLet(u"Application", u"ResourceDLL", tmp.u16("res_%L.dll"));
    app->languageLet(2);

    const VariantArray list = app->getLanguagesList();
    ASSERT_EQ(list.items.size(), 1u);
    EXPECT_EQ(list.items[0].string(), u"2;English;EN");
    EXPECT_EQ(app->loadRes(1, u"XML"), u"<resources>EN</resources>");
}

} // namespace
} // namespace velkor6
