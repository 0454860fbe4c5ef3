#include "applib/app_fixture.h"
#include "core/text.h"
#include "velkor6/enums.h"

namespace velkor6::apptest {
namespace {

using Placeholders = SalesApp;

TEST_F(Placeholders, FoldersBecomePlaceholdersAndBack) {
    struct Case {
        std::u16string_view full, stored;
    };
    const Case cases[] = {
        {u"C:\\Apps\\Sales\\Sales.ini", u"%AppPath%\\Sales.ini"},
        {u"C:\\Users\\Test\\AppData\\Roaming\\Ostrakware\\x.dat", u"%UserAppData%\\x.dat"},
        {u"C:\\ProgramData\\Ostrakware\\shared.mdb", u"%AppDataFolder%\\shared.mdb"},
        {u"C:\\Windows\\SysWOW64\\ostrak\\a.ini", u"%SysDir%\\ostrak\\a.ini"},
        {u"C:\\Windows\\win.ini", u"%WinDir%\\win.ini"},
        {u"C:\\Program Files\\Common Files\\x.dll", u"%CommonFiles%\\x.dll"},
        {u"C:\\Program Files (x86)\\Tool\\t.exe", u"%ProgramFiles%\\Tool\\t.exe"},
        {u"C:\\Apps\\Sales\\a;C:\\Apps\\Sales\\b", u"%AppPath%\\a;%AppPath%\\b"},
        {u"D:\\Other\\file.txt", u"D:\\Other\\file.txt"},
        {u"", u""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(toUtf8(c.full));
        EXPECT_EQ(app().relativePath(c.full), c.stored);
        EXPECT_EQ(app().absolutePath(c.stored), c.full);
    }
    // Letter case of the folder does not matter; the placeholder comes back in its own.
    EXPECT_EQ(app().relativePath(u"c:\\program files (x86)\\t.exe"), u"%ProgramFiles%\\t.exe");
    EXPECT_EQ(app().absolutePath(u"%apppath%\\x"), u"C:\\Apps\\Sales\\x");
}

TEST_F(Placeholders, AFolderTheSystemCannotGiveDropsOut) {
    fp.environment.setSpecialFolder(CSIDL_WINDOWS, u"");
    EXPECT_EQ(app().relativePath(u"C:\\Windows\\win.ini"), u"C:\\Windows\\win.ini");
    EXPECT_EQ(app().absolutePath(u"%WinDir%\\win.ini"), u"%WinDir%\\win.ini");
    fp.environment.setSpecialFolder(CSIDL_APPDATA, u"");
    EXPECT_EQ(app().relativePath(u"\\Ostrakware\\x"), u"\\Ostrakware\\x");
}

TEST_F(Placeholders, AFolderOfOneCharacterIsNoFolderToReplace) {
    for (const std::u16string_view path : {u".", u"\\"}) {
        auto other = library().vkrInitApp(HostApp{std::u16string(path), u"Dot", 1, 0, 0}, u"Dot");
        EXPECT_EQ(other->relativePath(u"v1.2 .\\a\\b"), u"v1.2 .\\a\\b");
    }
}

const std::string iniEditor = "REGEDIT4\r\n\r\n"
                              "[HKEY_CLASSES_ROOT\\.ini]\r\n@=\"inifile\"\r\n\r\n"
                              "[HKEY_CLASSES_ROOT\\inifile\\shell\\edit\\command]\r\n"
                              "@=\"editor.exe /e %1\"\r\n";

TEST_F(Placeholders, EditingOpensTheFileWithItsRegisteredEditor) {
    using Exec = fake::FakeShell::Execution;
    const auto same = [](const Exec& e, std::u16string_view verb, std::u16string_view file,
                         std::u16string_view folder) {
        return e.verb == verb && e.file == file && e.parameters.empty() && e.directory == folder &&
               e.showCommand == 6;
    };
    // No registered type: opened as a document.
    app().editINIFile();
    ASSERT_EQ(fp.shell.executions().size(), 1u);
    EXPECT_TRUE(same(fp.shell.executions()[0], u"open", u"Sales.ini", u"C:\\Apps\\Sales\\"));

    // With an edit command the "edit" verb; when that fails, the command line itself.
    ASSERT_TRUE(fp.registry.load(iniEditor));
    app().editINIFile();
    ASSERT_EQ(fp.shell.executions().size(), 2u);
    EXPECT_TRUE(same(fp.shell.executions()[1], u"edit", u"Sales.ini", u"C:\\Apps\\Sales\\"));
    EXPECT_TRUE(fp.shell.started().empty());

    fp.shell.setExecuteResult(31);
    app().editINIFile();
    ASSERT_EQ(fp.shell.started().size(), 1u);
    EXPECT_EQ(fp.shell.started()[0].command, u"editor.exe /e %1");
    EXPECT_EQ(fp.shell.started()[0].file, u"C:\\Apps\\Sales\\Sales.ini");

    // A command without "%1" falls back to opening the file.
    ASSERT_TRUE(fp.registry.load("REGEDIT4\r\n\r\n"
                                 "[HKEY_CLASSES_ROOT\\inifile\\shell\\edit\\command]\r\n"
                                 "@=\"editor.exe\"\r\n"));
    app().editINIFile();
    ASSERT_EQ(fp.shell.executions().size(), 5u);
    EXPECT_TRUE(same(fp.shell.executions()[4], u"open", u"Sales.ini", u"C:\\Apps\\Sales\\"));

    app().editLOGFile();
    EXPECT_TRUE(same(fp.shell.executions().back(), u"open", u"Sales.log",
                     u"C:\\Users\\Test\\AppData\\Local\\Temp\\"));
}

} // namespace
} // namespace velkor6::apptest
