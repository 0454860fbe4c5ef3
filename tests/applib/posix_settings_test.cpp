// Settings files on POSIX: where a settings name leads, and what of a value counts as a folder.
#include "core/text.h"
#include "fake/temp_folder.h"
#include "platform/posix_test_env.h"
#include "velkor6/lib.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velkor6 {
namespace {

using posixtest::contentOf;

TEST(PosixSettings, TheFileIsBesideTheProgramOrInTheCurrentFolder) {
    fake::TempFolder tmp;
    tmp.mkdir("app");
    tmp.mkdir("work");
    const fake::CurrentDirectoryGuard cwd;
    std::filesystem::current_path(tmp.path() / "work");
    lib l(std::make_shared<Module>(Platform::createNative(), Locale::englishUS()));

    struct Case {
        std::u16string appPath;
        std::filesystem::path file;
        std::u16string value;
        std::string stored;
    };
    const Case cases[] = {
        {tmp.u16("app"), tmp.path() / "app" / "SettingsTest.ini", tmp.u16("app/data/x.db"),
         "%AppPath%/data/x.db"},
        // A program started as "./tool": the name is the current folder's, and "." is no
        // folder to put a placeholder in for.
        {u".", tmp.path() / "work" / "SettingsTest.ini", u"./data/x.db", "./data/x.db"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.appPath));
        auto app = l.vkrInitApp(HostApp{c.appPath, u"SettingsTest", 1, 0, 0}, u"SettingsTest");
        app->stringValueLet(u"K", u"k", u"v1.2");
        app->stringValueLet(u"K", u"f", c.value);
        EXPECT_EQ(contentOf(c.file),
                  "[Application]\r\nLanguage=2\r\n[K]\r\nk=v1.2\r\nf=" + c.stored + "\r\n");
        EXPECT_EQ(app->stringValue(u"K", u"k"), u"v1.2");
        EXPECT_EQ(app->stringValue(u"K", u"f"), c.value);
    }
}

TEST(PosixSettings, PlaceholdersTakeFoldersInTheirOwnLetterCase) {
    lib l(std::make_shared<Module>(Platform::createNative(), Locale::englishUS()));
    auto app = l.vkrInitApp(HostApp{u"/srv/Sales", u"Sales", 1, 0, 0}, u"PlaceholderTest");
    struct Case {
        std::u16string_view full, stored;
    };
    const Case cases[] = {
        {u"/srv/Sales/a.db", u"%AppPath%/a.db"},
        {u"/srv/sales/a.db", u"/srv/sales/a.db"},
        {u"/opt/Tool/db", u"%ProgramFiles%/Tool/db"},
        {u"/OPT/Tool/db", u"/OPT/Tool/db"},
        // Each folder under its own name, none inside the Windows folder's.
        {u"/usr/share/x", u"%CommonFiles%/x"},
        {u"/usr/lib/x", u"%SysDir%/x"},
        {u"/etc/x.conf", u"%WinDir%/x.conf"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(toUtf8(c.full));
        EXPECT_EQ(app->relativePath(c.full), c.stored);
        EXPECT_EQ(app->absolutePath(c.stored), c.full);
    }
}

} // namespace
} // namespace velkor6
